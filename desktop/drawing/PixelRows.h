#pragma once

#include <cstdint>
#include <span>

/// Work on rows of pixels, in loops that compilers turn into vector instructions. This folder's own.
namespace PixelRows {

/// A component of a pixel with a fraction: 64 are one step of 255.
using Fine = std::int16_t;
inline constexpr int fineSteps = 64;

/// Of a mix's second part, all of it.
inline constexpr int fullShare = 128;

/// Mixes two rows. \param share of the second, 0..fullShare \pre all are of one length
void mix(std::span<const Fine> first, std::span<const Fine> second, int share,
         std::span<std::uint8_t> mixed);

} // namespace PixelRows
