#pragma once

#include "ObjectiveC/AttachedValues.h"
#include "ObjectiveC/NSObject.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <string>

/// The desktop's half of an object: its counts and what is attached to it. Outlives the object for as long as
/// weak references look at it.
struct ObjectPeer {
    explicit ObjectPeer(NSObject& owner) : object(&owner) {}

    static ObjectPeer& of(const NSObject& object) { return *object.peer_; }

    void retain() noexcept;
    void release() noexcept;
    /// One more owner, unless the object's end has begun.
    [[nodiscard]] bool retainIfAlive() noexcept;

    void releaseAttachedValues();

    void retainWeak() noexcept { weakCount.fetch_add(1, std::memory_order_relaxed); }

    void releaseWeak() noexcept;

    NSObject* const object;
    /// Owners. `ended` and above while the destructors run, so that what they retain and release counts for
    /// nothing.
    std::atomic<std::uint64_t> strongCount{1};
    /// Weak references, and one for the object itself.
    std::atomic<std::uint64_t> weakCount{1};
    /// Guarded by the mutex of AttachedValues.cpp.
    std::map<std::string, AttachedValue, std::less<>> attachedValues;

    static constexpr std::uint64_t ended = std::uint64_t{1} << 62U;
};
