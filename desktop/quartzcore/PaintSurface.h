#pragma once

#include "PixelWork.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRegion>
#include <optional>

/// A picture that layers are painted into: the whole's, or that of a group on its way into it. Work on whole
/// pixels is put off until something else needs the picture. Other pictures that are told here have to stay
/// until then.
class PaintSurface {
public:
    explicit PaintSurface(QImage& picture) : picture_(picture) {}

    /// See PixelRects.
    void fill(const QRegion& region, const QColor& color);
    void paintOver(const QRegion& region, const QColor& color);
    void copy(const QImage& from, const QRegion& region, QPoint corner);
    void paintOver(const QRegion& region, const QImage& over, QPoint corner, double opacity);

    /// Other work on whole pixels.
    void put(const QRegion& region, PixelWork::Step step);

    /// The picture as it is by now.
    [[nodiscard]] QImage& image();

    /// Paints into it as it is by now.
    [[nodiscard]] QPainter& painter();

    /// Does what was put off.
    void finish() { work_.finish(picture_); }

    /// What was put off, to be done by the caller; the picture has not been touched unless it was asked for.
    [[nodiscard]] PixelWork takeWork();

private:
    QImage& picture_;
    std::optional<QPainter> painter_;
    PixelWork work_;
};
