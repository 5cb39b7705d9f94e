#include "ColorGridPeer.h"

#include "ColorCode.h"
#include "SystemTexts.h"
#include "touches/DesktopTouch.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

namespace {

constexpr double corner = 8;
constexpr double ringWidth = 3;
constexpr int placeCount = ColorGridPeer::columns * ColorGridPeer::lines;

ColorComponents colorAtPlace(int place) {
    return ColorGridPeer::colorAt(place % ColorGridPeer::columns, place / ColorGridPeer::columns);
}

std::string rgb(const ColorComponents& color) {
    constexpr std::size_t withoutOpacity = 6;
    return codeOfColor(color).substr(0, withoutOpacity);
}

} // namespace

ColorComponents ColorGridPeer::colorAt(int column, int line) {
    const auto across = static_cast<float>(column) / columns;
    if (line == 0) {
        const auto gray = 1 - static_cast<double>(column) / (columns - 1);
        return {.red = gray, .green = gray, .blue = gray, .alpha = 1};
    }
    constexpr float darkest = 0.15F;
    constexpr float lightest = 0.9F;
    const auto lightness = darkest + (lightest - darkest) * static_cast<float>(line - 1) / (lines - 2);
    const auto color = QColor::fromHslF(across, 1, lightness);
    return {.red = color.redF(), .green = color.greenF(), .blue = color.blueF(), .alpha = 1};
}

std::optional<ColorComponents> ColorGridPeer::color() const {
    return chosen_ ? std::optional(colorAtPlace(*chosen_)) : std::nullopt;
}

void ColorGridPeer::setColor(const ColorComponents& color) {
    chosen_.reset();
    for (auto place = 0; place < placeCount && !chosen_; ++place) {
        if (rgb(colorAtPlace(place)) == rgb(color))
            chosen_ = place;
    }
    setNeedsDisplay();
}

void ColorGridPeer::choose(int place) {
    if (std::exchange(chosen_, place) == place)
        return;
    setNeedsDisplay();
    sendActions(UIControlEvents::ValueChanged, nullptr);
}

void ColorGridPeer::chooseUnder(const DesktopTouch& touch) {
    const auto size = view().bounds().size;
    const auto place = touch.locationInView(view());
    if (size.width <= 0 || size.height <= 0)
        return;
    const auto column = std::clamp(static_cast<int>(place.x / size.width * columns), 0, columns - 1);
    const auto line = std::clamp(static_cast<int>(place.y / size.height * lines), 0, lines - 1);
    choose(line * columns + column);
}

void ColorGridPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchBegan(touch, event);
    if (isTracking())
        chooseUnder(touch);
}

void ColorGridPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchMoved(touch, event);
    if (isTracking())
        chooseUnder(touch);
}

void ColorGridPeer::adjust(bool up) {
    const auto next = chosen_.value_or(up ? -1 : placeCount) + (up ? 1 : -1);
    choose(std::clamp(next, 0, placeCount - 1));
}

Accessibility ColorGridPeer::accessibility() const {
    auto told = UIControlPeer::accessibility();
    told.label = systemText("Grid");
    told.value = chosen_ ? rgb(colorAtPlace(*chosen_)) : std::string();
    told.role = AccessibilityRole::Slider;
    return told;
}

void ColorGridPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& /*traits*/) {
    const auto width = bounds.size.width / columns;
    const auto height = bounds.size.height / lines;
    const auto cell = [width, height](int place) {
        const auto line = place / columns;
        return QRectF(place % columns * width, line * height, width, height);
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, bounds.size.width, bounds.size.height), corner, corner);
    painter.setClipPath(outline);
    for (auto place = 0; place < placeCount; ++place)
        painter.fillRect(cell(place), colorAtPlace(place).toQColor());
    if (chosen_) {
        constexpr auto half = ringWidth / 2;
        painter.setPen(QPen(Qt::white, ringWidth));
        painter.drawRect(cell(*chosen_).adjusted(half, half, -half, -half));
    }
    painter.restore();
}
