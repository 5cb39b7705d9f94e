#include "cells/PSSliderTableCell.h"

#include "DesktopColor.h"
#include "Device.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "cells/PSControlTableCellPeer.h"
#include "cells/RowControl.h"
#include "controls/UISliderPeer.h"
#include "views/UILabelPeer.h"

#include <QLocale>
#include <algorithm>
#include <memory>
#include <utility>

namespace {

const Class cellClass = Class::define<PSSliderTableCell, PSControlTableCell>("PSSliderTableCell");

constexpr int shownDecimals = 2;
constexpr double valueGap = 8;
constexpr int mostSegments = 1000;

/// With no more decimals than it takes, in the user's language.
std::string textOfNumber(double value) {
    QLocale locale(QString::fromStdString(Device::current().locale()));
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    auto text = locale.toString(value, 'f', shownDecimals);
    const auto point = locale.decimalPoint();
    while (text.contains(point) && text.endsWith(locale.zeroDigit()))
        text.chop(1);
    if (text.endsWith(point))
        text.chop(point.size());
    return text.toStdString();
}

double numberFor(const DesktopSpecifier& specifier, const char* key, double otherwise) {
    const auto value = specifier.propertyForKey(key);
    return value && value->isNumber() ? value->doubleValue() : otherwise;
}

/// Keeps the slider and the row's value the same.
class PSSliderTableCellPeer final : public PSControlTableCellPeer {
public:
    // PSTableCellPeer:
    void refresh() override;

    // UIViewPeer:
    void layoutSubviews() override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    [[nodiscard]] UISliderPeer& sliderPeer() const { return peerOf<UISliderPeer>(*slider_); }

    void write() const;
    void showValue() const;
    void takeRange() const;
    [[nodiscard]] double valueWidth() const;

    Ref<UISlider> slider_;
    Ref<UILabel> valueLabel_;
};

void PSSliderTableCellPeer::viewMade() {
    PSControlTableCellPeer::viewMade();
    slider_ = make<UISlider>();
    valueLabel_ = make<UILabel>();
    valueLabel_->setTextColor(DesktopColor::system(SystemColor::SecondaryLabel));
    contentView().addSubview(slider_);
    contentView().addSubview(valueLabel_);
    sliderPeer().addHandler(UIControlEvents::ValueChanged, [this] { write(); });
}

void PSSliderTableCellPeer::refresh() {
    PSControlTableCellPeer::refresh();
    if (!specifier())
        return;
    textLabel().setText({});
    imageView().setImage(nullptr);
    takeRange();
    const auto value = specifier()->performGetter();
    if (!sliderPeer().isTracking())
        sliderPeer().setValue(value && value->isNumber() ? value->doubleValue()
                                                         : numberFor(*specifier(), "min", 0));
    sliderPeer().setImages(specifier()->imageForKey("leftImage"), specifier()->imageForKey("rightImage"));
    adoptRow(*slider_, *specifier());
    valueLabel_->peer().setHidden(!specifier()->boolForKey("showValue", false));
    showValue();
}

void PSSliderTableCellPeer::takeRange() const {
    const auto& row = *specifier();
    auto& peer = sliderPeer();
    peer.setRange(numberFor(row, "min", 0), numberFor(row, "max", 1));
    peer.setContinuous(row.boolForKey("isContinuous", true));
    const auto segments = row.boolForKey("isSegmented", false) ? numberFor(row, "segmentCount", 0) : 0;
    peer.setSegmentCount(static_cast<int>(std::clamp(segments, 0.0, double{mostSegments})));
}

void PSSliderTableCellPeer::write() const {
    const auto kept = retain(&cell());
    showValue();
    if (specifier())
        specifier()->performSetter(sliderPeer().value());
}

void PSSliderTableCellPeer::showValue() const {
    const auto number = textOfNumber(sliderPeer().value());
    valueLabel_->setText(number);
    auto told = sliderPeer().accessibility();
    told.value = valueLabel_->peer().isHidden() ? "" : number;
    sliderPeer().setAccessibility(told);
}

/// Enough for the ends of the range, so that the slider stays as it is while the value changes.
double PSSliderTableCellPeer::valueWidth() const {
    if (!specifier() || valueLabel_->peer().isHidden())
        return 0;
    double widest = 0;
    for (const auto& [key, otherwise] : {std::pair("min", 0.0), std::pair("max", 1.0)}) {
        constexpr double withAllDecimals = 0.01;
        const auto end = numberFor(*specifier(), key, otherwise);
        const auto longest = textOfNumber(end < 0 ? end - withAllDecimals : end + withAllDecimals);
        widest = std::max(widest, TextLayout(longest, {}).size().width());
    }
    return widest;
}

void PSSliderTableCellPeer::layoutSubviews() {
    PSControlTableCellPeer::layoutSubviews();
    const auto& content = contentView().peer();
    auto room = content.fromLeading(textLabel().frame());
    const auto number = valueWidth();
    if (number > 0) {
        valueLabel_->setTextAlignment(isRightToLeft() ? NSTextAlignment::Left : NSTextAlignment::Right);
        content.place(*valueLabel_, CGRectMake(CGRectGetMaxX(room) - number, 0, number, room.size.height));
        room.size.width = std::max(0.0, room.size.width - number - valueGap);
    }
    content.place(*slider_, CGRectMake(room.origin.x, CGRectGetMidY(room) - UISliderPeer::height / 2,
                                       room.size.width, UISliderPeer::height));
}

} // namespace

PSSliderTableCell::PSSliderTableCell() : PSControlTableCell(std::make_unique<PSSliderTableCellPeer>()) {}
