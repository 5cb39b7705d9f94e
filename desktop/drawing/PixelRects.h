#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRegion>

/// Work on whole pixels of pictures, without a painter and on the thread that asks. The pictures are ARGB32
/// premultiplied and have all of the pixels.
namespace PixelRects {

/// Gives the pixels of a region a colour in place of theirs.
void fill(QImage& picture, const QRegion& region, const QColor& color);

/// Paints a colour over them.
void paintOver(QImage& picture, const QRegion& region, const QColor& color);

/// Replaces them by those of another picture. \param corner of that one in the picture
void copy(const QImage& from, QImage& picture, const QRegion& region, QPoint corner = {});

/// Paints another picture over them. \param corner of that one in the picture \param opacity 0..1
void paintOver(QImage& picture, const QRegion& region, const QImage& over, QPoint corner, double opacity);

/// Brings back what a mask leaves out. \param before the pixels that are brought back \param mask of which
/// the alpha counts \param corner of these two pictures in the first
void bringBack(QImage& picture, const QRegion& region, const QImage& before, const QImage& mask,
               QPoint corner = {});

} // namespace PixelRects
