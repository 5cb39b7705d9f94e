#pragma once

#include <QImage>
#include <QRectF>
#include <cstddef>
#include <cstdint>
#include <vector>

/// A picture as it is seen larger or smaller, upright, each pixel mixed of the four that are nearest. A pixel
/// comes out the same whatever part it is asked for with. Made for one painting; the picture outlives it.
class ScaledPicture {
public:
    /// \param picture ARGB32 premultiplied, not empty \param place where it is seen, in pixels
    ScaledPicture(const QImage& picture, const QRectF& place) : picture_(picture), place_(place) {}

    /// Puts what is seen in place of some pixels; beyond the edges, more of the pixels at them.
    /// \param target ARGB32 premultiplied, with all those pixels
    /// \param corner of the target, where what is seen has it
    void copyTo(QImage& target, const QRect& pixels, QPoint corner = {}) const;

private:
    /// Neighbouring pixels of a row that are mixed of as many neighbours.
    struct Run {
        std::size_t from; ///< of the first pixel mixed of, in bytes
        std::size_t to;   ///< of the first one that comes out, in bytes
        std::size_t size; ///< bytes
    };

    struct Columns {
        std::vector<Run> runs;
        std::vector<std::uint8_t> shares; ///< of the next pixel, for each byte
    };

    [[nodiscard]] Columns columnsOf(const QRect& pixels) const;

    const QImage& picture_;
    QRectF place_;
};
