#pragma once

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

/// Moves each colour away from the gray of its brightness: by 1 not at all, by 1.8 as the platform's
/// backdrops.
/// \param image of any format
/// \returns an image of the same size and pixel ratio, ARGB32 premultiplied
[[nodiscard]] QImage saturated(const QImage& image, double factor);

/// What is seen through a backdrop of what lies behind it: blurred, its edges extended, then saturated.
/// \param image ARGB32 premultiplied \returns an image of the same kind and size
[[nodiscard]] QImage blurredBackdrop(const QImage& image, double sigma, double saturation);

/// A shape that is filled with an opaque colour, blurred; nothing is beyond the edges.
/// \param shape in pixels of an image of that size \returns it, ARGB32 premultiplied
[[nodiscard]] QImage blurredShape(const QPainterPath& shape, QSize size, double sigma, QRgb color);
