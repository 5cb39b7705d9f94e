#include "text/TextFieldBorder.h"

#include "DesktopColor.h"

#include <QPainter>

namespace {

constexpr double plainHeight = 22;
constexpr double borderedHeight = 34;
constexpr double cornerRadius = 5;
constexpr double roundedInset = 7;
constexpr double squareInset = 4;

QColor colorOf(SystemColor role, const Traits& traits) {
    return DesktopColor::resolve(DesktopColor::system(role), traits).toQColor();
}

} // namespace

UIEdgeInsets TextFieldBorder::textInsets(UITextBorderStyle style) {
    switch (style) {
    case UITextBorderStyle::None:
        return {};
    case UITextBorderStyle::Line:
    case UITextBorderStyle::Bezel:
        return {.top = 0, .left = squareInset, .bottom = 0, .right = squareInset};
    case UITextBorderStyle::RoundedRect:
        break;
    }
    return {.top = 0, .left = roundedInset, .bottom = 0, .right = roundedInset};
}

double TextFieldBorder::height(UITextBorderStyle style) {
    return style == UITextBorderStyle::None ? plainHeight : borderedHeight;
}

void TextFieldBorder::draw(UITextBorderStyle style, QPainter& painter, const CGRect& bounds,
                           const Traits& traits) {
    if (style == UITextBorderStyle::None)
        return;
    const auto isRound = style == UITextBorderStyle::RoundedRect;
    const auto pixel = 1 / traits.displayScale;
    const auto line = isRound ? pixel : 1.0;
    const auto radius = isRound ? cornerRadius - line / 2 : 0.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(colorOf(style == UITextBorderStyle::Line ? SystemColor::Label : SystemColor::Separator, traits),
             line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(isRound ? QBrush(colorOf(SystemColor::Background, traits)) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height)
                                .adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            radius, radius);
}
