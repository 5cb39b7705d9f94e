#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Work on rows of pixels, in loops that compilers turn into vector instructions.
namespace PixelRows {

/// A component of a pixel with a fraction: 16 are one step of 255, so that the edges between two values of a
/// slow slope are where they belong. Mixed with 16 shares, they fit into 16 bits.
using Fine = std::uint16_t;
inline constexpr int fineSteps = 16;
inline constexpr int fullFineShare = 16;

/// Of a mix's second part, all of it.
inline constexpr int fullShare = 128;

/// Bytes of a pixel in colour.
inline constexpr std::size_t pixelSize = 4;

/// Mixes two rows. \param share of the second, 0..fullFineShare \pre all are of one length
void mix(std::span<const Fine> first, std::span<const Fine> second, int share, std::span<std::uint8_t> mixed);
void mix(std::span<const std::uint8_t> first, std::span<const std::uint8_t> second, int share,
         std::span<std::uint8_t> mixed);

/// Mixes each pixel of a row with the one after it. \param shares of the latter, for each byte
/// \pre the row is a pixel longer than the others
void mixWithNext(std::span<const std::uint8_t> row, std::span<const std::uint8_t> shares,
                 std::span<std::uint8_t> mixed);

/// Paints a colour over a row. \param color premultiplied, for each byte; repeated \param rest what it leaves
/// of the row, 0..255
void paintColorOver(std::span<std::uint8_t> row, std::span<const std::uint8_t> color, std::uint8_t rest);

/// Paints a row over another. \param over premultiplied \param opacity 0..255
/// \pre both are of one length, of whole pixels
void paintOver(std::span<std::uint8_t> row, std::span<const std::uint8_t> over, std::uint8_t opacity);

/// Brings back in a row what a mask leaves out. \param before what is brought back \param mask in colour, of
/// which the alpha counts \pre all are of one length, of whole pixels
void bringBack(std::span<std::uint8_t> row, std::span<const std::uint8_t> before,
               std::span<const std::uint8_t> mask);

/// So many rows can be added to sums.
inline constexpr int rowsAddedAtMost = 257;

/// Adds a row to sums, byte by byte. \pre both are of one length
void add(std::span<const std::uint8_t> row, std::span<std::uint16_t> sums);

} // namespace PixelRows
