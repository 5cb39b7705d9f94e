#pragma once

#include "ObjectiveC/NSObject.h"
#include "Runtime.h"

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

    /// What attached values are associated with, and under which keys; see AttachedValues.cpp.
    id keeper = nullptr;
    std::set<const void*> attachedKeys;

    /// For the end of the C++ object, after its own destructors.
    void releaseAttachedValues();
};
