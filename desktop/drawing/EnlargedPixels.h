#pragma once

#include "PixelComponents.h"
#include "PixelRows.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

/// Pixels as they are seen larger, each that is seen mixed of the four that are nearest. A pixel comes out
/// the same whatever part it is asked for with. A value.
class EnlargedPixels {
public:
    /// \param pixels of which none is negative \param size that they are seen at
    EnlargedPixels(const PixelComponents& pixels, QSize size);

    /// Puts what is seen in place of some pixels. \param target with as many channels, and all those pixels
    /// \param pixels within what is seen \param corner of what is seen in the target
    void copyTo(QImage& target, const QRect& pixels, QPoint corner = {}) const;

private:
    std::vector<std::vector<PixelRows::Fine>> rows_; ///< of the wanted width
    std::size_t channels_;
    int height_;
};
