#include "ScreenPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastPixelsPerPoint = 0.05; // a window may have no size at all

/// The largest that keeps the screen in the window.
double pixelsPerPointIn(QSizeF window, double pixelRatio, CGSize screen) {
    const auto fitting =
        std::min(window.width() * pixelRatio / screen.width, window.height() * pixelRatio / screen.height);
    return std::max(fitting, leastPixelsPerPoint);
}

} // namespace

ScreenPlacement::ScreenPlacement(QSizeF window, double pixelRatio, CGSize screen)
    : pixelRatio_(pixelRatio),
      pixelsPerPoint_(pixelsPerPointIn(window, pixelRatio, screen)) {
    const auto pixels = [](double length) { return static_cast<int>(std::lround(length)); };
    const QSize size(pixels(screen.width * pixelsPerPoint_), pixels(screen.height * pixelsPerPoint_));
    const QSize around(pixels(window.width() * pixelRatio), pixels(window.height() * pixelRatio));
    pixelFrame_ = {QPoint((around.width() - size.width()) / 2, (around.height() - size.height()) / 2), size};
}

QRectF ScreenPlacement::frame() const {
    return {QPointF(pixelFrame_.topLeft()) / pixelRatio_, QSizeF(pixelFrame_.size()) / pixelRatio_};
}

CGPoint ScreenPlacement::toScreen(QPointF place) const {
    const auto pixels = place * pixelRatio_ - QPointF(pixelFrame_.topLeft());
    return {pixels.x() / pixelsPerPoint_, pixels.y() / pixelsPerPoint_};
}

QRectF ScreenPlacement::toWindow(const CGRect& rect) const {
    const auto unit = pixelsPerPoint_ / pixelRatio_;
    return QRectF(rect.origin.x * unit, rect.origin.y * unit, rect.size.width * unit, rect.size.height * unit)
        .translated(frame().topLeft());
}

QRect ScreenPlacement::toWindow(const QRect& pixels, QSize picture) const {
    const auto shown = frame();
    const auto horizontal = shown.width() / picture.width();
    const auto vertical = shown.height() / picture.height();
    const QRectF rect(shown.x() + pixels.x() * horizontal, shown.y() + pixels.y() * vertical,
                      pixels.width() * horizontal, pixels.height() * vertical);
    return rect.toAlignedRect().adjusted(-1, -1, 1, 1); // a scaled pixel spreads to its neighbours
}
