#pragma once

#include "EnlargedPixels.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

/// What is seen through a backdrop of what lies behind it: blurred, its edges extended, then each colour
/// moved away from the gray of its brightness, and a tint over all of it. A value.
class BlurredBackdrop {
public:
    /// \param behind what lies behind, at any fraction of its size; ARGB32 premultiplied, not empty
    /// \param sigma the blur's standard deviation in pixels of that image; 0 leaves it as it is
    /// \param saturation 1 leaves colours as they are, 1.8 is that of the platform's backdrops
    /// \param tint transparent for none \param size that it is seen at
    BlurredBackdrop(const QImage& behind, double sigma, double saturation, const QColor& tint, QSize size);

    /// Whether nothing shines through it.
    [[nodiscard]] bool isOpaque() const { return isOpaque_; }

    /// Puts what is seen in place of some pixels. \param target ARGB32 premultiplied, with all those pixels
    /// \param pixels within what is seen \param corner of what is seen in the target
    void copyTo(QImage& target, const QRect& pixels, QPoint corner = {}) const {
        enlarged_.copyTo(target, pixels, corner);
    }

private:
    explicit BlurredBackdrop(const PixelComponents& pixels, QSize size);

    bool isOpaque_;
    EnlargedPixels enlarged_;
};
