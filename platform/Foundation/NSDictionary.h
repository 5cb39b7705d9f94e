#pragma once

#include "Foundation/PropertyList.h"

#include <optional>
#include <string_view>

/// Reads a property-list file, binary or XML. Nothing when the file is missing, unreadable, damaged, or when
/// its value is not a dictionary.
[[nodiscard]] std::optional<PropertyList::Dictionary> dictionaryWithContentsOfFile(std::string_view path);

/// Writes an XML property list, in place of what is at the path, atomically: readers see the old file or the
/// new, whole. \returns false when it could not be written; the old file is then untouched
bool writeToFileAtomically(const PropertyList::Dictionary& dictionary, std::string_view path);
