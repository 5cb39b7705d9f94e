#include "ObjectPeer.h"

#include "FrameworkClass.h"
#include "Instances.h"
#include "Message.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"

namespace {

const FrameworkClass frameworkClass("NSObject", {initialiser<"-[NSObject init]", &NSObject::init>()});

id* slotOf(const WeakSlot& slot) {
    // The runtime empties the slot of a constant reference too.
    // NOLINTNEXTLINE(*-pro-type-const-cast)
    return reinterpret_cast<id*>(const_cast<void**>(&slot.reference));
}

} // namespace

NSObject::NSObject() : peer_(new ObjectPeer(*this)) {}

NSObject::~NSObject() {
    peer_->releaseAttachedValues();
    delete peer_;
}

std::string NSStringFromClass(const NSObject& instance) {
    return class_getName(object_getClass(objectOf(instance)));
}

bool NSObject::init() {
    return initialise<"-[NSObject init]">(*this);
}

void retainObject(NSObject& object) noexcept {
    ++ObjectPeer::of(object).owners;
    objc_retain(objectOf(object));
}

void releaseObject(NSObject& object) noexcept {
    --ObjectPeer::of(object).owners;
    objc_release(objectOf(object));
}

void initWeakSlot(WeakSlot& slot, NSObject* object) noexcept {
    if (object != nullptr)
        objc_initWeakOrNil(slotOf(slot), objectOf(*object));
}

NSObject* loadWeakSlotRetained(const WeakSlot& slot) noexcept {
    const id object = objc_loadWeakRetained(slotOf(slot));
    auto* const instance = instanceOf(object);
    if (instance == nullptr)
        objc_release(object);
    else
        ++ObjectPeer::of(*instance).owners;
    return instance;
}

void copyWeakSlot(WeakSlot& to, const WeakSlot& from) noexcept {
    objc_copyWeak(slotOf(to), slotOf(from));
}

void moveWeakSlot(WeakSlot& to, WeakSlot& from) noexcept {
    objc_moveWeak(slotOf(to), slotOf(from));
}

void destroyWeakSlot(WeakSlot& slot) noexcept {
    objc_destroyWeak(slotOf(slot));
    slot.reference = nullptr;
}
