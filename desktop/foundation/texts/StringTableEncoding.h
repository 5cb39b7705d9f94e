#pragma once

#include "texts/StringTable.h"

inline constexpr std::string_view utf8ByteOrderMark = "\xEF\xBB\xBF";

/// The text of a string table's bytes in UTF-8, without a byte-order mark. Bytes without a mark are UTF-16
/// when one of the first two is 0, since tables begin with an ASCII character, and UTF-8 otherwise.
[[nodiscard]] std::expected<std::string, StringTable::Damage> decodeStringTable(std::string_view bytes);
