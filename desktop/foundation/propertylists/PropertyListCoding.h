#pragma once

#include "Foundation/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

/// Property lists as the bytes of files. What is kept at all is limited: text is valid UTF-8 without U+0000,
/// and PropertyListBudget says how deep and how large a list may be.
enum class PropertyListFormat { Binary, XML };

/// Whether a dictionary that is kept may hold the value under the key.
[[nodiscard]] bool canBeKept(std::string_view key, const PropertyList& value);

/// The value as a file's content. Binary keeps every value exactly. XML keeps dates to the second, rounded
/// down, and no -0.0; it cannot hold control characters other than tab, line feed and carriage return, nor
/// U+FFFE and U+FFFF, nor dates outside the years 1 to 9999.
/// \returns nothing when the value, or the format, cannot keep what is in it
[[nodiscard]] std::optional<std::string> encodePropertyList(const PropertyList& value,
                                                            PropertyListFormat format);

/// The value that a file's content holds, in whichever of the two formats it is. Where a dictionary has one
/// key twice the later value counts.
/// \returns nothing when the content is damaged, or holds what a PropertyList does not
[[nodiscard]] std::optional<PropertyList> decodePropertyList(std::string_view bytes);
