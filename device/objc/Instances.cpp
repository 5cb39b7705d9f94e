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

    ~InstanceHolder() override { ObjectPeer::destroy(instance); }

    NSObject* const instance;
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

id holderOf(id object) {
    return objc_getAssociatedObject(object, &holderKey);
}

NSObject* attachedInstance(id object) {
    auto* const holder = dynamic_cast<InstanceHolder*>(boxContent(holderOf(object)));
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
    auto* const published = publishedClassOf(object);
    auto* const known = published != nullptr ? placeIn(object, published) : attachedInstance(object);
    if (known != nullptr)
        return known != ended ? known : nullptr;
    auto* const made = makeInstance(object);
    bind(object, *made);
    return made;
}

// What is associated with an object of the frameworks ends in no particular order, the C++ half among it.
id keeperOfAttachedValues(const NSObject& object) {
    const id owner = objectOf(object);
    const std::scoped_lock lock(mutex());
    return publishedClassOf(owner) != nullptr ? owner : holderOf(owner);
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
