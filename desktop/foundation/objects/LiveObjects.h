#pragma once

#include "ObjectiveC/Class.h"

#include <cstddef>
#include <mutex>
#include <unordered_set>

/// The objects of this process that have been made and not yet let go of by their last owner. Shows that what
/// has ended leaves nothing behind. One for the process; filled by the objects themselves, on any thread.
class LiveObjects {
public:
    [[nodiscard]] static LiveObjects& shared();

    void add(const NSObject& object);
    void remove(const NSObject& object);

    /// How many there are of a class and of those that derive from it. Not while another thread makes objects
    /// of such a class.
    [[nodiscard]] std::size_t countOf(const Class& kind) const;

private:
    LiveObjects() = default;

    mutable std::mutex mutex_;
    std::unordered_set<const NSObject*> objects_;
};
