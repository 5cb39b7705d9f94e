#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QRegion>
#include <functional>
#include <vector>

class QPainter;

/// The work of a painter in bands of few rows, with the same pixels: more rows at once are shared out to
/// threads, which costs more than it saves.
namespace PainterBands {

/// A region's bands. They depend on nothing but all of it.
[[nodiscard]] std::vector<QRect> of(const QRegion& region);

/// Draws a picture as it is. \pre the painter does not scale \param place of its corner
void draw(QPainter& painter, QPointF place, const QImage& image);

/// Draws a picture larger or smaller.
void draw(QPainter& painter, const QRectF& place, const QImage& image);

/// Has something painted band by band, each cut off at the band; of gradients the last bit may be another.
/// \pre it reaches no further than its place
void paint(QPainter& painter, const QRectF& place, const std::function<void()>& something);

} // namespace PainterBands
