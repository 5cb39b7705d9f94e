#include "presentation/PopoverArrowView.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <QPainter>
#include <QPainterPath>
#include <memory>

namespace {

using Side = PopoverGeometry::Side;

const Class classObject = Class::define<PopoverArrowView, UIView>("PopoverArrowView");

constexpr double tipRoundness = 0.3; ///< of the base: how broad the rounded tip is

/// With its base at the lower edge of a unit square, and its tip at the upper one.
QPainterPath arrow() {
    QPainterPath path(QPointF(0, 1));
    path.cubicTo(QPointF(tipRoundness, 1), QPointF(0.5 - tipRoundness / 2, 0), QPointF(0.5, 0));
    path.cubicTo(QPointF(0.5 + tipRoundness / 2, 0), QPointF(1 - tipRoundness, 1), QPointF(1, 1));
    path.closeSubpath();
    return path;
}

double turnFor(Side side) {
    constexpr double quarter = 90; // degrees
    switch (side) {
    case Side::Below:
        return 0;
    case Side::Left:
        return quarter;
    case Side::Above:
        return 2 * quarter;
    default:
        return -quarter;
    }
}

class PopoverArrowViewPeer final : public UIViewPeer {
public:
    using Object = PopoverArrowView;

    void setSide(Side side) {
        side_ = side;
        setNeedsDisplay();
    }

    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        const auto color =
            DesktopColor::resolve(DesktopColor::system(SystemColor::GroupedBackground), traits).toQColor();
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(bounds.size.width, bounds.size.height);
        painter.translate(0.5, 0.5);
        painter.rotate(turnFor(side_));
        painter.translate(-0.5, -0.5);
        painter.fillPath(arrow(), color);
        painter.restore();
    }

private:
    Side side_ = Side::Below;
};

} // namespace

PopoverArrowView::PopoverArrowView() : UIView(std::make_unique<PopoverArrowViewPeer>()) {
    setUserInteractionEnabled(false);
}

void PopoverArrowView::setSide(PopoverGeometry::Side side) {
    peerOf<PopoverArrowViewPeer>(*this).setSide(side);
}
