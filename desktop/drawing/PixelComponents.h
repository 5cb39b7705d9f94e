#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <vector>

/// Pixels as real numbers, row by row.
struct PixelComponents {
    std::vector<float> values;
    std::size_t rowCount = 0;
    std::size_t rowLength = 0; ///< in values
    std::size_t channels = 1;  ///< values of a pixel

    /// Those of an image. \param image ARGB32 premultiplied or Alpha8
    [[nodiscard]] static PixelComponents of(const QImage& image);

    /// The means of the parts of such an image; their edges are at whole pixels. \param size how many parts;
    /// none has more rows than can be added (`PixelRows`), or none at all
    [[nodiscard]] static PixelComponents reduced(const QImage& image, QSize size);

    /// An image of these pixels. \pre they have four channels, and none is negative
    [[nodiscard]] QImage toImage() const;
};
