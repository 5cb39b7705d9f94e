#pragma once

#include "CoreGraphics/CGGeometry.h"

#include <QRect>
#include <QRectF>
#include <QSize>

/// Where the device's screen lies in a window: in its middle, as large as fits, its proportions kept. Made
/// anew whenever the window's size changes.
class ScreenPlacement {
public:
    /// \param window the window's size in the desktop's own units, each of `pixelRatio` pixels
    ScreenPlacement(QSizeF window, double pixelRatio, CGSize screen);

    /// As given.
    [[nodiscard]] double pixelRatio() const { return pixelRatio_; }

    /// The window's pixels for one point of the screen.
    [[nodiscard]] double pixelsPerPoint() const { return pixelsPerPoint_; }

    /// The screen, in the window's units; its corners are on whole pixels.
    [[nodiscard]] QRectF frame() const;

    /// From the window's units to points of the screen, which may lie outside of it.
    [[nodiscard]] CGPoint toScreen(QPointF place) const;

    /// From points of the screen to the window's units.
    [[nodiscard]] QRectF toWindow(const CGRect& rect) const;

    /// What of the window shows these pixels of a picture of the screen, to whole units outward.
    /// \param picture the picture's size in pixels
    [[nodiscard]] QRect toWindow(const QRect& pixels, QSize picture) const;

private:
    double pixelRatio_;
    double pixelsPerPoint_;
    QRect pixelFrame_;
};
