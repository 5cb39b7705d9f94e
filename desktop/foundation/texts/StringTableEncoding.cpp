#include "texts/StringTableEncoding.h"

#include "Foundation/NSString.h"

#include <unicode/ustring.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>

namespace {

using Damage = StringTable::Damage;
using Decoded = std::expected<std::string, Damage>;

/// Appends a line of the text as UTF-8; false when it is not valid.
bool append(std::string& text, std::string_view line) {
    text += line;
    return isValidUTF8(line);
}

bool append(std::string& text, std::u16string_view line) {
    const auto before = text.size();
    text.resize(before + line.size() * 3); // no unit takes more bytes
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(text.data() + before, static_cast<int32_t>(text.size() - before), &length, line.data(),
                static_cast<int32_t>(line.size()), &status);
    text.resize(before + static_cast<std::size_t>(length));
    return U_SUCCESS(status) != 0;
}

/// Line by line, to know where a damage is.
template <class Character>
Decoded decode(std::basic_string_view<Character> source, const char* encoding) {
    std::string text;
    for (std::size_t line = 1; !source.empty(); ++line) {
        const auto end = source.find(Character{'\n'});
        const auto length = end == std::string_view::npos ? source.size() : end + 1;
        if (!append(text, source.substr(0, length)))
            return std::unexpected(Damage{line, encoding});
        source.remove_prefix(length);
    }
    return text;
}

Decoded decodeUTF16(std::string_view bytes, std::endian order) {
    constexpr auto encoding = "valid UTF-16";
    const auto high = order == std::endian::big ? 0U : 1U;
    const auto byteAt = [bytes](std::size_t index) { return static_cast<std::uint8_t>(bytes[index]); };
    std::u16string units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units += static_cast<char16_t>(byteAt(i + high) << 8U | byteAt(i + 1 - high));
    auto text = decode<char16_t>(units, encoding);
    if (text && bytes.size() % 2 != 0)
        return std::unexpected(Damage{1 + static_cast<std::size_t>(std::ranges::count(*text, '\n')),
                                      "a whole number of UTF-16 units"});
    return text;
}

} // namespace

std::expected<std::string, Damage> decodeStringTable(std::string_view bytes) {
    using namespace std::string_view_literals;
    if (bytes.starts_with("\xFE\xFF"))
        return decodeUTF16(bytes.substr(2), std::endian::big);
    if (bytes.starts_with("\xFF\xFE"))
        return decodeUTF16(bytes.substr(2), std::endian::little);
    if (bytes.starts_with(utf8ByteOrderMark))
        return decode(bytes.substr(utf8ByteOrderMark.size()), "valid UTF-8");
    if (const auto zero = bytes.substr(0, 2).find('\0'); zero != std::string_view::npos && bytes.size() > 1)
        return decodeUTF16(bytes, zero == 0 ? std::endian::big : std::endian::little);
    return decode(bytes, "valid UTF-8");
}
