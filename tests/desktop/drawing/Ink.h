#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRect>
#include <functional>

/// What `draw` paints on a transparent image, in points of `scale` pixels.
[[nodiscard]] QImage painted(const QSize& points, double scale, const std::function<void(QPainter&)>& draw);

/// A shape filled in black.
[[nodiscard]] QImage filled(const QPainterPath& shape, const QSize& points, double scale);

/// The smallest rectangle of pixels with all pixels of at least that alpha; empty when there are none.
[[nodiscard]] QRect inkOf(const QImage& image, int leastAlpha = 16);

/// All the image's alpha, 1 for an opaque pixel.
[[nodiscard]] double alphaSum(const QImage& image);
