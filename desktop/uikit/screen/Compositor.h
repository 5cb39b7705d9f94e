#pragma once

#include "LayerPainter.h"
#include "PaintList.h"

#include <QImage>
#include <QRegion>

class Screen;

/// Paints the screen's windows as they are at the device's present time. Keeps the picture and paints again
/// only what has changed in it. Made by whoever shows the screen, for as long as the screen lives. Main
/// thread only.
class Compositor {
public:
    explicit Compositor(Screen& screen) : screen_(screen) {}

    /// Lays the windows out and brings the picture up to date. \returns it, opaque, of the screen's size in
    /// pixels; valid until the next call
    const QImage& render();

    /// The pixels that the last call painted; empty when nothing had changed.
    [[nodiscard]] const QRegion& lastDamage() const { return lastDamage_; }

    /// Whether the picture of the last call goes on changing without anything being set.
    [[nodiscard]] bool isAnimating() const { return shown_.isAnimating(); }

    /// Has the next call paint everything.
    void forgetPicture() { picture_ = QImage(); }

private:
    Screen& screen_;
    PaintList shown_;
    LayerPainter painter_;
    QImage picture_;
    QRegion lastDamage_;
};
