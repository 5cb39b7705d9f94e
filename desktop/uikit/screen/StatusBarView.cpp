#include "screen/StatusBarView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopDateFormatter.h"
#include "DesktopFont.h"
#include "Device.h"
#include "ObjectiveC/Class.h"
#include "screen/Screen.h"
#include "screen/StatusGlyphs.h"
#include "texts/PercentText.h"
#include "time/UnixTime.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <QPainter>
#include <QRegularExpression>
#include <QString>
#include <cmath>
#include <utility>

namespace {

const Class classObject = Class::define<StatusBarView, UIView>("StatusBarView");

constexpr auto phoneTextSize = 16.0;
constexpr auto phoneMiddle = 26.0;     ///< of time and glyphs, from the screen's upper edge
constexpr auto phoneTimeCenter = 57.0; ///< from the leading edge
constexpr auto phoneTrailing = 27.0;   ///< from the glyphs to the trailing edge
constexpr auto padTextSize = 12.0;
constexpr auto padMiddle = 12.0; ///< of all, from the screen's upper edge
constexpr auto padMargin = 20.0;
constexpr auto padSpacing = 6.0;
constexpr auto outlineOpacity = 0.35;
constexpr auto longestTime = 80.0;

/// Draws the glyphs in the label's colour, from the trailing edge on.
class StatusGlyphsPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        auto color = DesktopColor::resolve(DesktopColor::system(SystemColor::Label), traits).toQColor();
        const auto fill = [&](double start, double width, const QPainterPath& shape) {
            const auto x = traits.rightToLeft ? bounds.size.width - start - width : start;
            painter.fillPath(shape.translated(x, 0), color);
        };
        using Glyphs = StatusGlyphs;
        const auto battery = bounds.size.width - Glyphs::batteryWidth;
        fill(battery, Glyphs::batteryWidth, Glyphs::batteryCharge());
        const auto wireless = battery - Glyphs::spacing - Glyphs::wirelessWidth;
        fill(traits.idiom == Idiom::Phone ? wireless : 0, Glyphs::wirelessWidth, Glyphs::wireless());
        if (traits.idiom == Idiom::Phone)
            fill(wireless - Glyphs::spacing - Glyphs::signalWidth, Glyphs::signalWidth, Glyphs::signal());
        color.setAlphaF(static_cast<float>(outlineOpacity));
        fill(battery, Glyphs::batteryWidth, Glyphs::batteryOutline());
    }
};

class StatusGlyphsView final : public UIView {
public:
    StatusGlyphsView() : UIView(std::make_unique<StatusGlyphsPeer>()) {}
};

Ref<UILabel> makeLabel(double size) {
    auto label = make<UILabel>();
    label->setFont(DesktopFont::font(size, FontWeight::Semibold));
    return label;
}

/// From the first digit to the last.
std::string withoutHalfOfDay(const std::string& time) {
    const auto text = QString::fromStdString(time);
    const QRegularExpression digits(R"(\d.*\d)", QRegularExpression::UseUnicodePropertiesOption);
    const auto found = digits.match(text);
    return found.hasMatch() ? found.captured().toStdString() : time;
}

} // namespace

StatusBarView::StatusBarView()
    : time_(make<UILabel>()),
      date_(makeLabel(padTextSize)),
      charge_(makeLabel(padTextSize)),
      glyphs_(make<StatusGlyphsView>()) {
    setUserInteractionEnabled(false);
    layer().peer().keepsPicture = true; // much is painted again beneath it
    time_->setTextAlignment(NSTextAlignment::Center);
    charge_->setText(percentText(1, Device::current().locale()));
    for (const auto& view : std::initializer_list<Ref<UIView>>{time_, date_, charge_, glyphs_})
        addSubview(view);
    refresh();
}

std::string StatusBarView::time() const {
    return peerOf<UILabelPeer>(*time_).text().value_or("");
}

void StatusBarView::refresh() {
    const auto now = Device::current().clock().date();
    constexpr auto secondsOfMinute = 60;
    const auto minute = std::floor(unixTimeOf(now) / secondsOfMinute);
    if (std::exchange(minute_, minute) == minute)
        return;
    const auto formatter = make<DesktopDateFormatter>();
    formatter->setTimeStyle(NSDateFormatterStyle::Short);
    const auto time = withoutHalfOfDay(formatter->stringFromDate(now));
    formatter->setDateFormatFromTemplate("EEEMMMd");
    const auto date = formatter->stringFromDate(now);
    time_->setText(time);
    date_->setText(date);
    peer().setNeedsLayout();
}

CGRect StatusBarView::textFrame() const {
    const auto isPhone = peer().traits().idiom == Idiom::Phone;
    const auto margin = isPhone ? phoneTrailing : padMargin;
    const auto height = isPhone ? phoneTextSize : padTextSize;
    return CGRectMake(margin, (isPhone ? phoneMiddle : padMiddle) - height / 2,
                      Screen::current().bounds().size.width - 2 * margin, height);
}

void StatusBarView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto isPhone = peer().traits().idiom == Idiom::Phone;
    date_->peer().setHidden(isPhone);
    charge_->peer().setHidden(isPhone);
    time_->setFont(DesktopFont::font(isPhone ? phoneTextSize : padTextSize, FontWeight::Semibold));
    if (isPhone)
        layoutPhone();
    else
        layoutPad();
}

void StatusBarView::layoutPhone() {
    const auto height = time_->peer().sizeThatFits({}).height;
    peer().place(
        *time_, CGRectMake(phoneTimeCenter - longestTime / 2, phoneMiddle - height / 2, longestTime, height));
    constexpr auto width = StatusGlyphs::signalWidth + StatusGlyphs::wirelessWidth +
                           StatusGlyphs::batteryWidth + 2 * StatusGlyphs::spacing;
    peer().place(*glyphs_, CGRectMake(bounds().size.width - phoneTrailing - width,
                                      phoneMiddle - StatusGlyphs::height / 2, width, StatusGlyphs::height));
}

void StatusBarView::layoutPad() {
    const auto place = [this](UILabel& label, double x) {
        const auto size = label.peer().sizeThatFits({});
        peer().place(label, CGRectMake(x, padMiddle - size.height / 2, size.width, size.height));
        return x + size.width;
    };
    place(*date_, place(*time_, padMargin) + padSpacing);
    const auto chargeWidth = charge_->peer().sizeThatFits({}).width;
    const auto batteryLeft = bounds().size.width - padMargin - StatusGlyphs::batteryWidth;
    const auto chargeLeft = batteryLeft - StatusGlyphs::spacing - chargeWidth;
    place(*charge_, chargeLeft);
    const auto glyphsLeft = chargeLeft - padSpacing - StatusGlyphs::wirelessWidth;
    peer().place(*glyphs_, CGRectMake(glyphsLeft, padMiddle - StatusGlyphs::height / 2,
                                      bounds().size.width - padMargin - glyphsLeft, StatusGlyphs::height));
}
