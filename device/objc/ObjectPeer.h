#pragma once

#include "ObjectiveC/NSObject.h"
#include "Runtime.h"

#include <atomic>
#include <set>

/// What a C++ object knows of its other half. Made and owned by the C++ object.
struct ObjectPeer {
    explicit ObjectPeer(NSObject& owner) : instance(owner) {}

    static ObjectPeer& of(const NSObject& object) { return *object.peer_; }

    /// Destroys the C++ object. Only the end of the Objective-C object does that.
    static void destroy(NSObject* object) { delete object; }

    NSObject& instance;

    /// The Objective-C object; null until it is first needed. Holds no ownership: the C++ object lives only
    /// as long as the Objective-C object does.
    id object = nullptr;

    /// How many times more C++ has retained the object than released it. A new object's first ownership, and
    /// those of Objective-C, are not counted.
    std::atomic<std::int64_t> owners = 0;

    /// What attached values are associated with, and under which keys; see AttachedValues.cpp. Owned; null
    /// until something is attached.
    id keeper = nullptr;
    std::set<const void*> attachedKeys;

    /// For the end of the C++ object, after its own destructors.
    void releaseAttachedValues();
};
