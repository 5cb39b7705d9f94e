#pragma once

#include "ObjectiveC/Method.h"
#include "Runtime.h"

/// The values of messages that are sent by selector, and the objects that carry them.

/// An autoreleased object; null for nothing.
[[nodiscard]] id messageObject(const MessageValue& value);

/// What an object is to a method that wants that type. For a type that is no object's: nothing.
[[nodiscard]] MessageValue messageValueOf(id object, MessageType type);

/// What an object is to who knows no type: a property-list value if it is one, a list if it is an array of
/// other things, else the object.
[[nodiscard]] MessageValue messageValueOf(id object);
