#include "DesktopScanner.h"

#include <unicode/uchar.h>
#include <unicode/uiter.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

std::optional<std::uint32_t> hexDigit(char character) {
    if (character >= '0' && character <= '9')
        return static_cast<std::uint32_t>(character - '0');
    if (character >= 'a' && character <= 'f')
        return static_cast<std::uint32_t>(character - 'a' + 10);
    if (character >= 'A' && character <= 'F')
        return static_cast<std::uint32_t>(character - 'A' + 10);
    return std::nullopt;
}

bool isWhiteSpace(UChar32 character) {
    constexpr UChar32 nextLine = 0x85;
    return u_isblank(character) != 0 || (character >= '\n' && character <= '\r') || character == nextLine ||
           u_charType(character) == U_LINE_SEPARATOR || u_charType(character) == U_PARAGRAPH_SEPARATOR;
}

/// Of white space in UTF-8; none of it takes more than three.
std::size_t byteCount(UChar32 whiteSpace) {
    constexpr UChar32 firstOfTwo = 0x80;
    constexpr UChar32 firstOfThree = 0x800;
    if (whiteSpace < firstOfTwo)
        return 1;
    return whiteSpace < firstOfThree ? 2 : 3;
}

} // namespace

Ref<NSScanner> NSScanner::scannerWithString(std::string_view text) {
    return make<DesktopScanner>(text);
}

std::optional<std::uint32_t> DesktopScanner::scanHexInt() {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    auto place = afterPrefix(nextValue());
    std::optional<std::uint64_t> value;
    for (; place < text_.size(); ++place) {
        const auto digit = hexDigit(text_[place]);
        if (!digit)
            break;
        value = std::min(largest, value.value_or(0) * 16 + *digit);
    }
    if (!value)
        return std::nullopt;
    place_ = place;
    return static_cast<std::uint32_t>(*value);
}

std::size_t DesktopScanner::nextValue() const {
    auto place = place_;
    UCharIterator characters;
    uiter_setUTF8(&characters, text_.data() + place, static_cast<std::int32_t>(text_.size() - place));
    for (auto next = uiter_next32(&characters); isWhiteSpace(next); next = uiter_next32(&characters))
        place += byteCount(next);
    return place;
}

std::size_t DesktopScanner::afterPrefix(std::size_t place) const {
    const auto isPrefix = text_.compare(place, 2, "0x") == 0 || text_.compare(place, 2, "0X") == 0;
    return isPrefix && place + 2 < text_.size() && hexDigit(text_[place + 2]) ? place + 2 : place;
}
