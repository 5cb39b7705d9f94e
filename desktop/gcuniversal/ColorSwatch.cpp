#include "ColorSwatch.h"

#include "ColorCode.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <QPainter>
#include <QPainterPath>
#include <memory>

namespace {

const Class swatchClass = Class::define<ColorSwatch, UIView>("ColorSwatch");

constexpr double corner = 6.5;

class ColorSwatchPeer final : public UIViewPeer {
public:
    using Object = ColorSwatch;

    void setColor(const ColorComponents& color) {
        color_ = color;
        setNeedsDisplay();
    }

    [[nodiscard]] const ColorComponents& color() const { return color_; }

    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

private:
    ColorComponents color_{.red = 0, .green = 0, .blue = 0, .alpha = 0};
};

void drawChequers(QPainter& painter, const QRectF& rect) {
    constexpr double side = 5;
    painter.fillRect(rect, Qt::white);
    for (auto line = 0; line * side < rect.height(); ++line) {
        for (auto column = line % 2; column * side < rect.width(); column += 2)
            painter.fillRect(QRectF(column * side, line * side, side, side), QColor(204, 204, 204));
    }
}

void ColorSwatchPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) {
    const QRectF rect(0, 0, bounds.size.width, bounds.size.height);
    QPainterPath outline;
    outline.addRoundedRect(rect, corner, corner);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(outline);
    if (color_.alpha < 1)
        drawChequers(painter, rect);
    painter.fillRect(rect, color_.toQColor());
    painter.setClipping(false);
    painter.setPen(
        QPen(DesktopColor::resolve(DesktopColor::system(SystemColor::Separator), traits).toQColor(),
             1 / traits.displayScale));
    painter.drawPath(outline);
    painter.restore();
}

PropertyList::Dictionary ColorSwatchPeer::inspectedProperties() const {
    auto properties = UIViewPeer::inspectedProperties();
    properties.insert_or_assign("color", codeOfColor(color_));
    return properties;
}

} // namespace

ColorSwatch::ColorSwatch() : UIView(std::make_unique<ColorSwatchPeer>()) {
    setUserInteractionEnabled(false);
}

const ColorComponents& ColorSwatch::color() const {
    return peerOf<ColorSwatchPeer>(*this).color();
}

void ColorSwatch::setColor(const ColorComponents& color) {
    peerOf<ColorSwatchPeer>(*this).setColor(color);
}
