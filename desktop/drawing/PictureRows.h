#pragma once

#include "PixelWork.h"

#include <QImage>
#include <QRegion>
#include <QSize>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

/// The rows of a picture that is read from top to bottom. Some of them may be made as they are read, so that
/// the picture need not be brought up to date where it is to change again. Made for one painting.
class PictureRows {
public:
    /// All rows are there. \param picture ARGB32 premultiplied; it outlives this
    explicit PictureRows(const QImage& picture) : picture_(&picture), size_(picture.size()) {}

    /// \param picture with the other rows \param made what is made of pixels, whole rows of what is read
    /// \param work that makes them
    PictureRows(const QImage& picture, QSize size, QRegion made, PixelWork work);

    [[nodiscard]] QSize size() const { return size_; }

    /// Some pixels of a row. Those of one row stay valid while the same ones of the next are asked for.
    /// \pre the row is there, or made of the pixels
    [[nodiscard]] std::span<const std::uint8_t> row(int y, int left, int width);

private:
    struct Made {
        QRegion region;
        PixelWork work;
    };

    /// Two stretches of rows that were made, one above the other; a few rows at once are made faster.
    struct Bands {
        QImage rows;
        std::array<QRect, 2> places;
        std::size_t recent = 0; ///< that with the last row that was asked for
    };

    /// \returns the number of the row of the bands that has the pixels
    [[nodiscard]] int madeRowOf(const QRect& pixels);
    void make(std::size_t band, const QRect& pixels);

    const QImage* picture_;
    QSize size_;
    std::shared_ptr<const Made> made_; ///< null for none
    Bands bands_;
};
