#pragma once

#include "Runtime.h"

#include <optional>
#include <string>
#include <string_view>

/// String objects and UTF-8, U+0000 included.

/// An autoreleased string object. Bytes that are not valid UTF-8 are taken as Latin-1: a strange text is
/// better than none.
[[nodiscard]] id textObject(std::string_view text);

/// Whether an object is a string.
[[nodiscard]] bool isText(id object);

/// The text of a string object; "" for null. What has no place in UTF-8, such as half a pair of surrogates,
/// is replaced.
[[nodiscard]] std::string textOf(id string);

/// The same; nothing for null and for what is no string.
[[nodiscard]] std::optional<std::string> textIfAny(id object);
