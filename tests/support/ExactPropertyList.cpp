#include "ExactPropertyList.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <type_traits>

namespace {

bool hasSameBits(double left, double right) {
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

bool areExactlyEqual(const PropertyList::Array& left, const PropertyList::Array& right) {
    return std::ranges::equal(left, right, isExactlyEqual);
}

bool areExactlyEqual(const PropertyList::Dictionary& left, const PropertyList::Dictionary& right) {
    return std::ranges::equal(left, right, [](const auto& one, const auto& other) {
        return one.first == other.first && isExactlyEqual(one.second, other.second);
    });
}

} // namespace

bool isExactlyEqual(const PropertyList& left, const PropertyList& right) {
    return left.visit([&](const auto& held) {
        using Held = std::remove_cvref_t<decltype(held)>;
        const auto* const other = right.getIf<Held>();
        if (other == nullptr)
            return false;
        if constexpr (std::is_same_v<Held, double>)
            return hasSameBits(held, *other);
        else if constexpr (std::is_same_v<Held, NSDate>)
            return hasSameBits(held.timeIntervalSinceReferenceDate, other->timeIntervalSinceReferenceDate);
        else if constexpr (std::is_same_v<Held, PropertyList::Array> ||
                           std::is_same_v<Held, PropertyList::Dictionary>)
            return areExactlyEqual(held, *other);
        else
            return held == *other;
    });
}
