#include "Instances.h"

#include "Box.h"
#include "Foundation/NSLog.h"
#include "Message.h"
#include "ObjectPeer.h"
#include "PublishedClasses.h"

#include <mutex>

namespace {

/// A C++ half whose class nobody knows more about.
class PlainObject final : public NSObject {};

/// Keeps the C++ half of an object of the frameworks, to which it is attached.
struct InstanceHolder final : BoxContent {
    explicit InstanceHolder(NSObject& held) : instance(&held) {}

    ~InstanceHolder() override {
        if (instance != nullptr)
            ObjectPeer::destroy(instance);
    }

    NSObject* instance; ///< null once it is another object's half
};

constexpr std::uintptr_t retainAttached = 01401;

/// Its address is the key under which a holder is attached.
constexpr char holderKey = 0;

/// In the place of a C++ half that has ended; nobody looks at what is there.
alignas(NSObject) char endedMark = 0;
NSObject* const ended = reinterpret_cast<NSObject*>(&endedMark);

/// Guards the two halves' finding of each other.
std::recursive_mutex& mutex() {
    static auto* const shared = new std::recursive_mutex;
    return *shared;
}

NSObject*& placeIn(id object, objc_class* published) {
    const auto offset = ivar_getOffset(class_getInstanceVariable(published, instanceVariableName));
    return *reinterpret_cast<NSObject**>(reinterpret_cast<char*>(object) + offset);
}

InstanceHolder* holderOf(id object) {
    return dynamic_cast<InstanceHolder*>(boxContent(objc_getAssociatedObject(object, &holderKey)));
}

/// What is in the place of the C++ half: null, one that has ended, or the C++ half.
NSObject* boundInstance(id object) {
    if (auto* const published = publishedClassOf(object))
        return placeIn(object, published);
    const auto* const holder = holderOf(object);
    return holder != nullptr ? holder->instance : nullptr;
}

void bind(id object, NSObject& instance) {
    ObjectPeer::of(instance).object = object;
    if (auto* const published = publishedClassOf(object)) {
        placeIn(object, published) = &instance;
        return;
    }
    const id holder = makeBox(std::make_unique<InstanceHolder>(instance));
    objc_setAssociatedObject(object, &holderKey, holder, retainAttached);
    objc_release(holder);
}

/// The object goes on without its C++ half, which it does not end any more.
void unbind(id object) {
    if (auto* const published = publishedClassOf(object)) {
        placeIn(object, published) = ended;
        return;
    }
    holderOf(object)->instance = nullptr;
    objc_setAssociatedObject(object, &holderKey, nullptr, retainAttached);
}

/// \returns false, having changed nothing, when that object has a C++ half
bool becomeHalfOf(id other, NSObject& instance) {
    const std::scoped_lock lock(mutex());
    if (boundInstance(other) != nullptr)
        return false;
    unbind(objectOf(instance));
    bind(other, instance);
    return true;
}

/// A C++ object of the nearest class in the class table that can be made plainly.
NSObject* makeInstance(id object) {
    for (auto* candidate = object_getClass(object); candidate != nullptr;
         candidate = class_getSuperclass(candidate)) {
        const auto* const stated = statedClass(candidate);
        if (stated == nullptr)
            continue;
        if (auto made = stated->allocate())
            return made.leak();
    }
    return new PlainObject;
}

/// The class of the Objective-C half. An error holds what it tells in C++; its other half only counts.
objc_class* classFor(const NSObject& instance) {
    const auto& stated = instance.isa();
    auto* const found = stated.name() == "NSError" ? nullptr : runtimeClass(stated);
    return found != nullptr ? found : objc_getClass("NSObject");
}

} // namespace

id objectOf(const NSObject& object) {
    const std::scoped_lock lock(mutex());
    const auto& peer = ObjectPeer::of(object);
    if (peer.object == nullptr)
        bind(send<"+[NSObject alloc]", id>(classObject(classFor(object))), peer.instance);
    return peer.object;
}

NSObject* instanceOf(id object) {
    if (object == nullptr)
        return nullptr;
    const std::scoped_lock lock(mutex());
    if (auto* const known = boundInstance(object))
        return known != ended ? known : nullptr;
    auto* const made = makeInstance(object);
    bind(object, *made);
    return made;
}

bool acceptInitialised(NSObject& created, id answer) {
    const id before = objectOf(created);
    if (answer == before)
        return true;
    if (!becomeHalfOf(answer, created)) {
        NSLog("The object that an initialiser of %@ answers with is another C++ object's.",
              created.isa().name());
        objc_release(answer);
        return false;
    }
    for (auto owners = ObjectPeer::of(created).owners.load(); owners > 0; --owners) {
        objc_retain(answer);
        objc_release(before);
    }
    return true;
}

void endInstance(id object) {
    NSObject* instance = nullptr;
    {
        const std::scoped_lock lock(mutex());
        instance = std::exchange(placeIn(object, publishedClassOf(object)), ended);
    }
    if (instance != nullptr && instance != ended)
        ObjectPeer::destroy(instance);
}
