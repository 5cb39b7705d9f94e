#pragma once

#include "Foundation/PropertyList.h"
#include "Runtime.h"

#include <optional>

/// Property-list values and the objects that stand for them. Kinds are kept both ways: a boolean is not a
/// number, and a whole number is not a real one.

/// An autoreleased object.
[[nodiscard]] id propertyListObject(const PropertyList& value);

/// An autoreleased dictionary that can be changed.
[[nodiscard]] id dictionaryObject(const PropertyList::Dictionary& dictionary);

/// The value of an object; nothing for null and for an object that no property list holds. Such elements of
/// an array or a dictionary are left out, and so are keys that are no texts.
[[nodiscard]] std::optional<PropertyList> propertyListOf(id object);

/// Likewise for what may be no dictionary.
[[nodiscard]] std::optional<PropertyList::Dictionary> dictionaryOf(id object);

/// Whether the value can be kept in a file: every text in it, keys included, is UTF-8 without U+0000.
[[nodiscard]] bool canBeKept(const PropertyList& value);
