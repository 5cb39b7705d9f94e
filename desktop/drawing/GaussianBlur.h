#pragma once

#include "PixelComponents.h"

#include <QImage>
#include <QPainterPath>
#include <QSize>

/// What a blur takes to be beyond an image's edges.
enum class BlurEdges {
    Transparent, ///< nothing: shadows
    Extended     ///< more of the pixels at the edge: backdrops
};

/// Blurs with the standard deviation `sigma`, in pixels of the image; 0 leaves it as it is.
/// \param image of any format
/// \returns an image of the same size and pixel ratio, ARGB32 premultiplied but for Alpha8, which it remains
[[nodiscard]] QImage blurred(const QImage& image, double sigma, BlurEdges edges);

/// What such a blur makes of an image, at the fraction of its size at which that cannot be told.
/// \param image ARGB32 premultiplied or Alpha8, not empty
[[nodiscard]] PixelComponents blurredComponents(const QImage& image, double sigma, BlurEdges edges);

/// A shape that is filled with an opaque colour, blurred; nothing is beyond the edges.
/// \param shape in pixels of an image of that size \returns it, ARGB32 premultiplied
[[nodiscard]] QImage blurredShape(const QPainterPath& shape, QSize size, double sigma, QRgb color);
