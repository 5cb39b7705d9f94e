#pragma once

#include "PictureRows.h"

#include <QImage>
#include <QRectF>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// A picture as it is seen larger or smaller, upright, each pixel mixed of the four that are nearest. A pixel
/// comes out the same whatever part it is asked for with. Made for one painting, and asked from top to
/// bottom.
class ScaledPicture {
public:
    /// \param picture not empty \param place where it is seen, in pixels
    ScaledPicture(PictureRows picture, const QRectF& place)
        : picture_(std::move(picture)),
          size_(picture_.size()),
          place_(place) {}

    /// Puts what is seen in place of some pixels; beyond the edges, more of the pixels at them.
    /// \param target ARGB32 premultiplied, with all those pixels
    /// \param corner of the target, where what is seen has it
    void copyTo(QImage& target, const QRect& pixels, QPoint corner = {});

private:
    /// Neighbouring pixels of a row that are mixed of as many neighbours.
    struct Run {
        std::size_t from; ///< of the first pixel mixed of, in bytes of what is needed
        std::size_t to;   ///< of the first one that comes out, in bytes
        std::size_t size; ///< bytes
    };

    /// What columns of pixels are mixed of.
    struct Columns {
        int left = 0;
        int count = 0;
        int firstNeeded = 0; ///< of the picture's
        int neededCount = 0;
        std::vector<Run> runs;
        std::vector<std::uint8_t> shares; ///< of the next pixel, for each byte
    };

    /// Finds out what those of some pixels are mixed of, unless they were the last ones.
    void prepareColumns(const QRect& pixels);

    PictureRows picture_;
    QSize size_; ///< of the picture
    QRectF place_;
    Columns columns_;
    std::vector<std::uint8_t> mixed_; ///< of two rows
};
