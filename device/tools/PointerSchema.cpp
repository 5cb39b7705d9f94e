#include "PointerSchema.h"

#include "Refusal.h"

#include <array>
#include <charconv>

namespace {

constexpr std::string_view markerPrefix = "corvex$signed$";
constexpr std::array<const char*, 4> keyNames{"IA", "IB", "DA", "DB"};

constexpr unsigned diversityShift = 32;
constexpr unsigned addressShift = 48;
constexpr unsigned keyShift = 49;

} // namespace

PointerSchema PointerSchema::decoded(std::uint64_t bits) {
    return {.key = static_cast<Key>(bits >> keyShift & 3U),
            .addressDiversified = (bits >> addressShift & 1U) != 0,
            .diversity = static_cast<std::uint16_t>(bits >> diversityShift)};
}

std::uint64_t PointerSchema::encoded() const {
    return static_cast<std::uint64_t>(diversity) << diversityShift |
           static_cast<std::uint64_t>(addressDiversified) << addressShift |
           static_cast<std::uint64_t>(key) << keyShift;
}

std::string PointerSchema::description() const {
    return std::string(keyNames.at(static_cast<std::size_t>(key))) +
           (addressDiversified ? ", address, " : ", ") + hexadecimal(diversity);
}

std::string PointerSchema::markerName(std::size_t number) const {
    return std::string(markerPrefix) + std::to_string(encoded()) + "$" + std::to_string(number);
}

std::optional<PointerSchema> PointerSchema::ofMarker(std::string_view symbolName) {
    if (!symbolName.starts_with(markerPrefix))
        return std::nullopt;
    const std::string digits(symbolName.substr(markerPrefix.size()));
    std::uint64_t bits = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), bits);
    if (error != std::errc() || *end != '$')
        throw Refusal("the symbol " + std::string(symbolName) + " is no marker of a signed pointer");
    return decoded(bits);
}
