#include "PixelRows.h"

#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>

namespace {

/// Has the address sanitizer notice when not all of a row may be touched.
template <class Component>
void watchRow([[maybe_unused]] std::span<Component> row) {
#ifdef __SANITIZE_ADDRESS__
    auto* const begin = const_cast<std::remove_const_t<Component>*>(row.data());
    if (const auto* const wrong = __asan_region_is_poisoned(begin, row.size_bytes()))
        static_cast<void>(*static_cast<const volatile char*>(wrong));
#endif
}

/// The same for so many components of each row.
void watch(std::size_t size, auto... rows) {
    (watchRow(rows.first(size)), ...);
}

} // namespace

// The loops are compiled twice, and those with the wider vectors run where the processor has them.
#ifdef __x86_64__
#define CORVEX_WIDE_VECTORS [[gnu::target_clones("avx2", "default")]]
#else
#define CORVEX_WIDE_VECTORS
#endif

// The sanitizers see rows as a whole. Byte by byte, in the loops, they would take most of the time of all
// that paints.
#if defined(__SANITIZE_ADDRESS__) && defined(__clang__)
#pragma clang attribute push(                                                                                \
    __attribute__((no_sanitize("address", "alignment", "null", "pointer-overflow"))), apply_to = function)
#endif

namespace {

/// In 16 bits, which clang would not keep a sum of products to: that took it several times as long.
constexpr std::uint16_t product(std::uint16_t one, std::uint16_t other) {
    return static_cast<std::uint16_t>(one * other);
}

/// A 255th of a product, rounded. \pre the product is one of two bytes, or a sum that is not larger
constexpr std::uint8_t dividedBy255(std::uint16_t product) {
    constexpr std::uint16_t half = 128;
    const auto part = static_cast<std::uint16_t>(product + half);
    return static_cast<std::uint8_t>(static_cast<std::uint16_t>(part + (part >> 8U)) >> 8U);
}

/// As many pixels as are worked on at once.
constexpr std::size_t blockPixels = 64;
constexpr std::uint32_t opaquePixel = 0xFF000000U;     ///< its alpha
using Alphas = std::array<std::uint32_t, blockPixels>; ///< of each pixel, for each of its bytes

/// What the pixels of a block let through.
enum class Block { Clear, Mixed, Opaque };

Block findAlphas(const std::uint8_t* pixels, std::size_t count, std::uint32_t* alphas) {
    std::uint32_t any = 0;
    auto all = opaquePixel;
    for (std::size_t index = 0; index < count; ++index) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, pixels + index * PixelRows::pixelSize, PixelRows::pixelSize);
        any |= pixel;
        all &= pixel;
        const auto alpha = pixel >> 24U;
        const auto twice = alpha | alpha << 8U;
        alphas[index] = twice | twice << 16U;
    }
    if (any == 0)
        return Block::Clear;
    return all == opaquePixel ? Block::Opaque : Block::Mixed;
}

void fade(const std::uint8_t* __restrict pixels, std::uint16_t opacity, std::uint8_t* __restrict faded,
          std::size_t size) {
    for (std::size_t index = 0; index < size; ++index)
        faded[index] = dividedBy255(static_cast<std::uint16_t>(pixels[index] * opacity));
}

void paintPixelsOver(std::uint8_t* __restrict out, const std::uint8_t* __restrict over,
                     const std::uint8_t* __restrict alphas, std::size_t size) {
    for (std::size_t index = 0; index < size; ++index) {
        const auto rest = static_cast<std::uint16_t>(255 - alphas[index]);
        out[index] = static_cast<std::uint8_t>(over[index] +
                                               dividedBy255(static_cast<std::uint16_t>(out[index] * rest)));
    }
}

void bringPixelsBack(std::uint8_t* __restrict out, const std::uint8_t* __restrict before,
                     const std::uint8_t* __restrict shares, std::size_t size) {
    for (std::size_t index = 0; index < size; ++index) {
        const auto rest = static_cast<std::uint16_t>(255 - shares[index]);
        out[index] =
            dividedBy255(static_cast<std::uint16_t>(out[index] * shares[index] + before[index] * rest));
    }
}

} // namespace

CORVEX_WIDE_VECTORS
void PixelRows::mix(std::span<const Fine> first, std::span<const Fine> second, int share,
                    std::span<std::uint8_t> mixed) {
    const auto size = mixed.size();
    watch(size, first, second, mixed);
    constexpr auto whole = fineSteps * fullFineShare;
    const auto secondShare = static_cast<Fine>(share);
    const auto firstShare = static_cast<Fine>(fullFineShare - share);
    const auto* __restrict one = first.data();
    const auto* __restrict other = second.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < size; ++index) {
        const auto sum = static_cast<Fine>(product(one[index], firstShare) +
                                           product(other[index], secondShare) + whole / 2);
        out[index] = static_cast<std::uint8_t>(sum / whole);
    }
}

CORVEX_WIDE_VECTORS
void PixelRows::mix(std::span<const std::uint8_t> first, std::span<const std::uint8_t> second, int share,
                    std::span<std::uint8_t> mixed) {
    const auto size = mixed.size();
    watch(size, first, second, mixed);
    const auto secondShare = static_cast<std::uint16_t>(share);
    const auto firstShare = static_cast<std::uint16_t>(fullShare - share);
    const auto* __restrict one = first.data();
    const auto* __restrict other = second.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < size; ++index) {
        const auto sum = static_cast<std::uint16_t>(product(one[index], firstShare) +
                                                    product(other[index], secondShare) + fullShare / 2);
        out[index] = static_cast<std::uint8_t>(sum / fullShare);
    }
}

CORVEX_WIDE_VECTORS
void PixelRows::mixWithNext(std::span<const std::uint8_t> row, std::span<const std::uint8_t> shares,
                            std::span<std::uint8_t> mixed) {
    const auto size = mixed.size();
    watch(size + pixelSize, row);
    watch(size, shares, mixed);
    const auto* __restrict from = row.data();
    const auto* __restrict shareOf = shares.data();
    auto* __restrict out = mixed.data();
    for (std::size_t index = 0; index < size; ++index) {
        const auto share = static_cast<std::uint16_t>(shareOf[index]);
        const auto rest = static_cast<std::uint16_t>(fullShare - share);
        const auto sum =
            static_cast<std::uint16_t>(from[index] * rest + from[index + pixelSize] * share + fullShare / 2);
        out[index] = static_cast<std::uint8_t>(sum / fullShare);
    }
}

CORVEX_WIDE_VECTORS
void PixelRows::paintOver(std::span<std::uint8_t> row, std::span<const std::uint8_t> over,
                          std::uint8_t opacity) {
    watch(row.size(), row, over);
    constexpr std::uint8_t full = 255;
    Alphas alphas;
    std::array<std::uint8_t, blockPixels * pixelSize> faded{};
    for (std::size_t start = 0; start < row.size(); start += faded.size()) {
        const auto size = std::min(faded.size(), row.size() - start);
        const auto* pixels = over.data() + start;
        if (opacity != full) {
            fade(pixels, opacity, faded.data(), size);
            pixels = faded.data();
        }
        const auto block = findAlphas(pixels, size / pixelSize, alphas.data());
        if (block == Block::Opaque)
            std::memcpy(row.data() + start, pixels, size);
        else if (block == Block::Mixed)
            paintPixelsOver(row.data() + start, pixels, reinterpret_cast<const std::uint8_t*>(alphas.data()),
                            size);
    }
}

CORVEX_WIDE_VECTORS
void PixelRows::bringBack(std::span<std::uint8_t> row, std::span<const std::uint8_t> before,
                          std::span<const std::uint8_t> mask) {
    watch(row.size(), row, before, mask);
    Alphas alphas;
    for (std::size_t start = 0; start < row.size(); start += blockPixels * pixelSize) {
        const auto size = std::min(blockPixels * pixelSize, row.size() - start);
        static_cast<void>(findAlphas(mask.data() + start, size / pixelSize, alphas.data()));
        bringPixelsBack(row.data() + start, before.data() + start,
                        reinterpret_cast<const std::uint8_t*>(alphas.data()), size);
    }
}

CORVEX_WIDE_VECTORS
void PixelRows::paintColorOver(std::span<std::uint8_t> row, std::span<const std::uint8_t> color,
                               std::uint8_t rest) {
    const auto size = row.size();
    watch(size, row, color);
    const auto* __restrict added = color.data();
    auto* __restrict out = row.data();
    for (std::size_t index = 0; index < size; ++index)
        out[index] = static_cast<std::uint8_t>(dividedBy255(static_cast<std::uint16_t>(out[index] * rest)) +
                                               added[index]);
}

CORVEX_WIDE_VECTORS
void PixelRows::add(std::span<const std::uint8_t> row, std::span<std::uint16_t> sums) {
    const auto size = row.size();
    watch(size, row, sums);
    const auto* __restrict from = row.data();
    auto* __restrict to = sums.data();
    for (std::size_t index = 0; index < size; ++index)
        to[index] = static_cast<std::uint16_t>(to[index] + from[index]);
}

#if defined(__SANITIZE_ADDRESS__) && defined(__clang__)
#pragma clang attribute pop
#endif
