#include "objects/ObjectPeer.h"

#include "ObjectiveC/Weak.h"
#include "objects/LiveObjects.h"

#include <utility>

NSObject::NSObject() : peer_(new ObjectPeer(*this)) {
    LiveObjects::shared().add(*this);
}

NSObject::~NSObject() {
    peer_->strongCount.store(ObjectPeer::ended, std::memory_order_relaxed);
    peer_->releaseAttachedValues();
    peer_->releaseWeak();
}

void ObjectPeer::releaseAttachedValues() {
    // With none left in the peer, since the end of a value may look back at its owner.
    const auto released = std::exchange(attachedValues, {});
}

void ObjectPeer::retain() noexcept {
    strongCount.fetch_add(1, std::memory_order_relaxed);
}

void ObjectPeer::release() noexcept {
    if (strongCount.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    strongCount.store(ended, std::memory_order_relaxed);
    LiveObjects::shared().remove(*object);
    delete object;
}

bool ObjectPeer::retainIfAlive() noexcept {
    auto count = strongCount.load(std::memory_order_relaxed);
    while (count != 0 && count < ended / 2) {
        if (strongCount.compare_exchange_weak(count, count + 1, std::memory_order_acq_rel))
            return true;
    }
    return false;
}

void ObjectPeer::releaseWeak() noexcept {
    if (weakCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

void retainObject(NSObject& object) noexcept {
    ObjectPeer::of(object).retain();
}

void releaseObject(NSObject& object) noexcept {
    ObjectPeer::of(object).release();
}

namespace {

ObjectPeer* peerIn(const WeakSlot& slot) {
    return static_cast<ObjectPeer*>(slot.reference);
}

void fill(WeakSlot& slot, ObjectPeer* peer) {
    if (peer != nullptr)
        peer->retainWeak();
    slot.reference = peer;
}

} // namespace

void initWeakSlot(WeakSlot& slot, NSObject* object) noexcept {
    fill(slot, object != nullptr ? &ObjectPeer::of(*object) : nullptr);
}

NSObject* loadWeakSlotRetained(const WeakSlot& slot) noexcept {
    auto* const peer = peerIn(slot);
    return peer != nullptr && peer->retainIfAlive() ? peer->object : nullptr;
}

void copyWeakSlot(WeakSlot& to, const WeakSlot& from) noexcept {
    fill(to, peerIn(from));
}

void moveWeakSlot(WeakSlot& to, WeakSlot& from) noexcept {
    to.reference = std::exchange(from.reference, nullptr);
}

void destroyWeakSlot(WeakSlot& slot) noexcept {
    if (auto* const peer = peerIn(slot))
        peer->releaseWeak();
    slot.reference = nullptr;
}
