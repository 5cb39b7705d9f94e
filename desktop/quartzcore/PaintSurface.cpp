#include "PaintSurface.h"

#include "PixelRects.h"

#include <utility>

void PaintSurface::fill(const QRegion& region, const QColor& color) {
    put(region, [color](QImage& target, const QRect& pixels, QPoint corner) {
        PixelRects::fill(target, pixels.translated(-corner), color);
    });
}

void PaintSurface::paintOver(const QRegion& region, const QColor& color) {
    put(region, [color](QImage& target, const QRect& pixels, QPoint corner) {
        PixelRects::paintOver(target, pixels.translated(-corner), color);
    });
}

void PaintSurface::copy(const QImage& from, const QRegion& region, QPoint corner) {
    put(region, [&from, corner](QImage& target, const QRect& pixels, QPoint targetCorner) {
        PixelRects::copy(from, target, pixels.translated(-targetCorner), corner - targetCorner);
    });
}

void PaintSurface::paintOver(const QRegion& region, const QImage& over, QPoint corner, double opacity) {
    put(region, [&over, corner, opacity](QImage& target, const QRect& pixels, QPoint targetCorner) {
        PixelRects::paintOver(target, pixels.translated(-targetCorner), over, corner - targetCorner, opacity);
    });
}

void PaintSurface::put(const QRegion& region, PixelWork::Step step) {
    work_.add(region, std::move(step));
}

QImage& PaintSurface::image() {
    finish();
    return picture_;
}

QPainter& PaintSurface::painter() {
    finish();
    if (!painter_) {
        painter_.emplace(&picture_);
        painter_->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                                 QPainter::SmoothPixmapTransform);
    }
    return *painter_;
}

PixelWork PaintSurface::takeWork() {
    return std::exchange(work_, {});
}
