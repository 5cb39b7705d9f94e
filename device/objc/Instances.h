#pragma once

#include "ObjectiveC/NSObject.h"
#include "Runtime.h"

/// Objective-C objects and the C++ objects that are their other halves. Either may come first: an object that
/// C++ makes gets its Objective-C half when that is first needed, and an Objective-C object gets a C++ one,
/// of the nearest class that the class table knows, when C++ first sees it. Then they stay together until
/// `dealloc`, unless an initialiser answers with another object. Any thread.

/// The Objective-C half. Not before the object's constructors have run: its class follows from its type.
[[nodiscard]] id objectOf(const NSObject& object);

/// The same for one that may be missing.
[[nodiscard]] inline id objectOf(const NSObject* object) {
    return object != nullptr ? objectOf(*object) : nullptr;
}

/// The C++ half. Null for null, and while an object's end goes on.
[[nodiscard]] NSObject* instanceOf(id object);

/// The C++ half as a `T`, with one more owner; empty when it is none.
template <class T>
[[nodiscard]] Ref<T> instanceAs(id object) {
    return retain(dynamic_cast<T*>(instanceOf(object)));
}

/// The same for an object that C++ takes over with one ownership, such as the result of an initialiser.
template <class T>
[[nodiscard]] Ref<T> adoptInstance(id object) {
    auto instance = instanceAs<T>(object);
    objc_release(object);
    return instance;
}

/// Takes over what an initialiser has answered with, and the ownership that comes with it. When that is
/// another object than `created` is the other half of, it becomes that one's, with all its owners; one that
/// has a C++ half already is released and logged.
/// \returns whether `created` is the other half of the answer
[[nodiscard]] bool acceptInitialised(NSObject& created, id answer);

/// Ends the C++ half. For the `dealloc` of published classes.
void endInstance(id object);

/// The name of the instance variable that refers to the C++ half.
inline constexpr auto instanceVariableName = "_corvexInstance";
