#include "PixelRows.h"

void PixelRows::mix(std::span<const Fine> first, std::span<const Fine> second, int share,
                    std::span<std::uint8_t> mixed) {
    constexpr auto whole = fineSteps * fullFineShare;
    const auto secondShare = static_cast<Fine>(share);
    const auto firstShare = static_cast<Fine>(fullFineShare - share);
    const auto* __restrict one = first.data();
    const auto* __restrict other = second.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < mixed.size(); ++index) {
        const auto sum = static_cast<Fine>(one[index] * firstShare + other[index] * secondShare + whole / 2);
        out[index] = static_cast<std::uint8_t>(sum / whole);
    }
}

void PixelRows::mix(std::span<const std::uint8_t> first, std::span<const std::uint8_t> second, int share,
                    std::span<std::uint8_t> mixed) {
    const auto secondShare = static_cast<std::uint16_t>(share);
    const auto firstShare = static_cast<std::uint16_t>(fullShare - share);
    const auto* __restrict one = first.data();
    const auto* __restrict other = second.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < mixed.size(); ++index) {
        const auto sum =
            static_cast<std::uint16_t>(one[index] * firstShare + other[index] * secondShare + fullShare / 2);
        out[index] = static_cast<std::uint8_t>(sum / fullShare);
    }
}

void PixelRows::mixWithNext(std::span<const std::uint8_t> row, std::span<const std::uint8_t> shares,
                            std::span<std::uint8_t> mixed) {
    const auto* __restrict from = row.data();
    const auto* __restrict shareOf = shares.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < mixed.size(); ++index) {
        const auto share = static_cast<std::uint16_t>(shareOf[index]);
        const auto rest = static_cast<std::uint16_t>(fullShare - share);
        const auto sum =
            static_cast<std::uint16_t>(from[index] * rest + from[index + pixelSize] * share + fullShare / 2);
        out[index] = static_cast<std::uint8_t>(sum / fullShare);
    }
}

void PixelRows::paintOver(std::span<std::uint8_t> row, std::span<const std::uint8_t> color,
                          std::uint8_t rest) {
    constexpr std::uint16_t half = 128;
    const auto* __restrict added = color.data();
    auto* __restrict out = row.data();
    const std::uint16_t share = rest;
    for (std::size_t index = 0; index < row.size(); ++index) {
        const auto part = static_cast<std::uint16_t>(out[index] * share + half);
        const auto left = static_cast<std::uint16_t>(part + (part >> 8U)); // divided by 255, rounded
        out[index] = static_cast<std::uint8_t>((left >> 8U) + added[index]);
    }
}

void PixelRows::add(std::span<const std::uint8_t> row, std::span<std::uint16_t> sums) {
    const auto* __restrict from = row.data();
    auto* __restrict to = sums.data();
    for (std::size_t index = 0; index < row.size(); ++index)
        to[index] = static_cast<std::uint16_t>(to[index] + from[index]);
}
