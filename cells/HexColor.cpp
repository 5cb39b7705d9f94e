#include "HexColor.h"

#include "Foundation/NSScanner.h"

#include <array>
#include <cstddef>
#include <vector>

namespace {

constexpr auto largestPart = 255.0;

/// Stands for half of a character that takes two of the units that texts are counted in.
constexpr auto halfCharacter = "?";

/// In UTF-8, by its first byte.
std::size_t bytesOfCharacter(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first < 0xE0)
        return 2;
    return first < 0xF0 ? 3 : 4;
}

/// The text taken apart into what the platform counts as its characters: the units of UTF-16.
std::vector<std::string> unitsOf(const std::string& text) {
    std::vector<std::string> units;
    for (std::size_t place = 0; place < text.size();) {
        const auto bytes = bytesOfCharacter(static_cast<unsigned char>(text[place]));
        if (bytes < 4)
            units.push_back(text.substr(place, bytes));
        else
            units.insert(units.end(), 2, halfCharacter);
        place += bytes;
    }
    return units;
}

double part(const std::string& pair) {
    return NSScanner::scannerWithString(pair)->scanHexInt().value_or(0) / largestPart;
}

} // namespace

Ref<UIColor> colorFromHex(const std::optional<std::string>& text) {
    const auto units = unitsOf(text.value_or(""));
    const auto isShort = units.size() == 3 || units.size() == 4;
    const auto isLong = units.size() == 6 || units.size() == 8;
    if (!isShort && !isLong)
        return UIColor::colorWithRed(0, 0, 0, 0);
    const std::size_t width = isShort ? 1 : 2;
    std::array parts{0.0, 0.0, 0.0, 1.0};
    for (std::size_t index = 0; index < units.size() / width; ++index)
        parts[index] = part(units[index * width] + units[index * width + width - 1]);
    return UIColor::colorWithRed(parts[0], parts[1], parts[2], parts[3]);
}
