#include "ColorPickerView.h"

#include "ColorCode.h"
#include "ColorGridPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "SystemTexts.h"
#include "controls/UISliderPeer.h"
#include "scrolling/UIScrollViewPeer.h"
#include "text/UITextFieldPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <utility>

namespace {

const Class viewClass = Class::define<ColorPickerView, UIScrollView>("ColorPickerView");

constexpr double margin = 16;
constexpr double rowHeight = 44;
constexpr double swatchWidth = 72;
constexpr double gap = 12;
constexpr double leastLabelWidth = 64;
constexpr double cellHeight = 26;

} // namespace

ColorPickerView::ColorPickerView(bool hasOpacity)
    : hasOpacity_(hasOpacity),
      swatch_(make<ColorSwatch>()),
      field_(make<UITextField>()),
      grid_(make<ColorGrid>()),
      parts_{{{systemText("Red"), &ColorComponents::red, {}, {}},
              {systemText("Green"), &ColorComponents::green, {}, {}},
              {systemText("Blue"), &ColorComponents::blue, {}, {}},
              {systemText("Opacity"), &ColorComponents::alpha, {}, {}}}} {
    setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    addSubview(swatch_);
    addSubview(field_);
    addSubview(grid_);
    auto& field = peerOf<UITextFieldPeer>(*field_);
    field.setBorderStyle(UITextBorderStyle::RoundedRect);
    field.setPlaceholder(systemText("Hex Color"));
    field.setTextInputTraits({.capitals = TextInputTraits::Capitals::None});
    field.setEndsOnReturn(true);
    field.setEndHandler([this] { readField(); });
    peerOf<ColorGridPeer>(*grid_).addHandler(UIControlEvents::ValueChanged, [this] {
        auto chosen = peerOf<ColorGridPeer>(*grid_).color().value_or(color_);
        chosen.alpha = color_.alpha > 0 ? color_.alpha : 1;
        choose(chosen);
    });
    addParts();
}

void ColorPickerView::addParts() {
    for (auto& part : parts_) {
        part.label = make<UILabel>();
        part.slider = make<UISlider>();
        part.label->setText(part.name);
        part.label->peer().setAccessibility({.label = {}, .value = {}, .isLeftOut = true});
        part.slider->peer().setAccessibility({.label = part.name, .value = {}, .isElement = true});
        const auto isLeftOut = part.value == &ColorComponents::alpha && !hasOpacity_;
        part.label->peer().setHidden(isLeftOut);
        part.slider->peer().setHidden(isLeftOut);
        addSubview(part.label);
        addSubview(part.slider);
        auto& slider = peerOf<UISliderPeer>(*part.slider);
        slider.addHandler(UIControlEvents::ValueChanged, [this, &slider, value = part.value] {
            auto chosen = color_;
            chosen.*value = slider.value();
            if (value != &ColorComponents::alpha && chosen.alpha <= 0)
                chosen.alpha = 1;
            choose(chosen);
        });
    }
}

void ColorPickerView::setColor(const ColorComponents& color) {
    color_ = color;
    if (!hasOpacity_)
        color_.alpha = 1;
    swatch_->setColor(color_);
    peerOf<ColorGridPeer>(*grid_).setColor(color_);
    if (!peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder())
        peerOf<UITextFieldPeer>(*field_).setText(codeOfColor(color_));
    for (const auto& part : parts_)
        peerOf<UISliderPeer>(*part.slider).setValue(color_.*part.value);
}

void ColorPickerView::choose(const ColorComponents& color) {
    setColor(color);
    changed_();
}

/// What is no colour is put back.
void ColorPickerView::readField() {
    const auto typed = colorFromCode(field_->text());
    if (typed && codeOfColor(*typed) != codeOfColor(color_))
        choose(*typed);
    else
        setColor(color_);
}

void ColorPickerView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    const auto width = bounds().size.width - 2 * margin;
    auto y = margin;
    peer().place(*swatch_, CGRectMake(margin, y, swatchWidth, rowHeight));
    peer().place(*field_, CGRectMake(margin + swatchWidth + gap, y, width - swatchWidth - gap, rowHeight));
    y += rowHeight + margin;
    grid_->setFrame(CGRectMake(margin, y, width, cellHeight * ColorGridPeer::lines));
    y += cellHeight * ColorGridPeer::lines + margin;
    const auto labelWidth = widestLabel();
    for (const auto& part : parts_) {
        layOutPart(part, y, labelWidth);
        y += rowHeight;
    }
    peerOf<UIScrollViewPeer>(*this).setContentSize({bounds().size.width, y + margin});
}

/// Of those that are shown, so that all sliders begin where the longest name leaves them room.
double ColorPickerView::widestLabel() const {
    auto width = leastLabelWidth;
    for (const auto& part : parts_)
        if (!part.label->peer().isHidden())
            width = std::max(width, part.label->peer().sizeThatFits({}).width);
    return width;
}

void ColorPickerView::layOutPart(const Part& part, double y, double labelWidth) {
    const auto start = margin + labelWidth + gap;
    peer().place(*part.label, CGRectMake(margin, y, labelWidth, rowHeight));
    peer().place(*part.slider, CGRectMake(start, y + (rowHeight - UISliderPeer::height) / 2,
                                          bounds().size.width - start - margin, UISliderPeer::height));
}
