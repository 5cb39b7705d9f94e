#include "views/UILabelPeer.h"

#include "DesktopColor.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double noLimit = std::numeric_limits<double>::infinity();

/// What a height may fall short of a line's and still show it, in points: heights are rounded to pixels.
constexpr double lineTolerance = 0.5;

HorizontalAlignment horizontal(NSTextAlignment alignment, bool rightToLeft) {
    switch (alignment) {
    case NSTextAlignment::Center:
        return HorizontalAlignment::Center;
    case NSTextAlignment::Right:
        return HorizontalAlignment::Right;
    case NSTextAlignment::Left:
        break;
    case NSTextAlignment::Natural:
        return rightToLeft ? HorizontalAlignment::Right : HorizontalAlignment::Left;
    }
    return HorizontalAlignment::Left;
}

/// A smaller text is not smaller in exact proportion, so it is aimed a pixel lower and measured again.
constexpr int shrinkingAttempts = 4;

/// Of a text of several lines, from its size down to the least.
constexpr int shrinkingSteps = 12;

} // namespace

UILabelPeer::UILabelPeer() : textColor_(DesktopColor::system(SystemColor::Label)) {
    setUserInteractionEnabled(false);
}

void UILabelPeer::setText(const std::optional<std::string>& text) {
    if (text_ == text)
        return;
    text_ = text;
    changed();
}

void UILabelPeer::setFontStyle(const FontStyle& style) {
    if (fontStyle_ == style)
        return;
    fontStyle_ = style;
    changed();
}

void UILabelPeer::setTextColor(const Ref<UIColor>& color) {
    textColor_ = color ? color : DesktopColor::system(SystemColor::Label);
    setNeedsDisplay();
}

void UILabelPeer::setTextAlignment(NSTextAlignment alignment) {
    if (textAlignment_ == alignment)
        return;
    textAlignment_ = alignment;
    changed();
}

void UILabelPeer::setNumberOfLines(std::size_t lines) {
    if (numberOfLines_ == lines)
        return;
    numberOfLines_ = lines;
    changed();
}

void UILabelPeer::setLineBreakMode(NSLineBreakMode mode) {
    lineBreakMode_ = mode;
    changed();
}

void UILabelPeer::setAdjustsFontSizeToFitWidth(bool adjusts) {
    adjustsFontSizeToFitWidth_ = adjusts;
    changed();
}

void UILabelPeer::setMinimumScaleFactor(double factor) {
    minimumScaleFactor_ = factor;
    changed();
}

void UILabelPeer::setShadowColor(const Ref<UIColor>& color) {
    shadowColor_ = color;
    setNeedsDisplay();
}

void UILabelPeer::setShadowOffset(CGSize offset) {
    shadowOffset_ = offset;
    setNeedsDisplay();
}

void UILabelPeer::changed() {
    laid_.reset();
    setNeedsDisplay();
    setNeedsConstraintLayout();
}

/// Nothing without text.
std::optional<TextLayout> UILabelPeer::layoutInWidth(double width) const {
    const auto& text = text_.value_or(std::string());
    if (text.empty())
        return std::nullopt;
    return TextLayout(text, fontStyle_,
                      {.maximumWidth = numberOfLines_ != 1 && width > 0 ? width : noLimit,
                       .maximumLines = numberOfLines_,
                       .pixelScale = traits().displayScale});
}

CGSize UILabelPeer::sizeThatFits(CGSize room) const {
    const auto layout = layoutInWidth(room.width);
    return layout ? CGSize{layout->size().width(), layout->size().height()} : CGSize();
}

double UILabelPeer::heightOfLines(double width) const {
    const auto layout = layoutInWidth(width);
    return layout ? static_cast<double>(layout->lineCount()) * fontStyle_.lineHeight() : 0;
}

std::optional<double> UILabelPeer::intrinsicWidth() const {
    return sizeThatFits({preferredMaxLayoutWidth_, 0}).width;
}

std::optional<double> UILabelPeer::intrinsicHeight() const {
    return sizeThatFits({preferredMaxLayoutWidth_, 0}).height;
}

bool UILabelPeer::takeLayoutWidth(double width) {
    const auto changes = numberOfLines_ != 1 && preferredMaxLayoutWidth_ != width;
    if (changes)
        preferredMaxLayoutWidth_ = width;
    return changes;
}

std::size_t UILabelPeer::lineLimit(const FontStyle& style, double height) const {
    const auto fitting = std::max(1.0, std::floor((height + lineTolerance) / style.lineHeight()));
    if (numberOfLines_ != 0 && static_cast<double>(numberOfLines_) <= fitting)
        return numberOfLines_;
    return static_cast<std::size_t>(fitting);
}

TextLayoutOptions UILabelPeer::optionsFor(const FontStyle& style, CGSize size, double scale) const {
    return {.maximumWidth = size.width,
            .maximumLines = lineLimit(style, size.height),
            .alignment = horizontal(textAlignment_, isRightToLeft()),
            .endsWithEllipsis = lineBreakMode_ == NSLineBreakMode::ByTruncatingTail,
            .pixelScale = scale};
}

FontStyle UILabelPeer::styleFitting(CGSize size, double scale) const {
    if (!adjustsFontSizeToFitWidth_)
        return fontStyle_;
    return numberOfLines_ == 1 ? styleFittingLine(size.width, scale) : styleFittingLines(size, scale);
}

FontStyle UILabelPeer::styleFittingLine(double width, double scale) const {
    const auto& text = text_.value_or(std::string());
    auto style = fontStyle_;
    const auto smallest = fontStyle_.size * minimumScaleFactor_;
    for (auto attempt = 0; attempt < shrinkingAttempts && style.size > smallest; ++attempt) {
        const auto needed = TextLayout(text, style, {.pixelScale = scale}).size().width();
        if (needed <= width)
            break;
        style.size = std::max(smallest, style.size * (width - 1 / scale) / needed);
    }
    return style;
}

FontStyle UILabelPeer::styleFittingLines(CGSize size, double scale) const {
    const auto& text = text_.value_or(std::string());
    auto style = fontStyle_;
    for (auto step = 1; step <= shrinkingSteps; ++step) {
        if (!TextLayout(text, style, optionsFor(style, size, scale)).isTruncated())
            break;
        style.size = fontStyle_.size * std::lerp(1, minimumScaleFactor_, step / double{shrinkingSteps});
    }
    return style;
}

const TextLayout& UILabelPeer::layoutFor(CGSize size, double scale) const {
    if (!laid_ || laid_->size != size || laid_->scale != scale) {
        const auto style = styleFitting(size, scale);
        laid_.emplace(Laid{size, scale,
                           TextLayout(text_.value_or(std::string()), style, optionsFor(style, size, scale))});
    }
    return laid_->layout;
}

bool UILabelPeer::isTruncated() const {
    return layoutFor(view().bounds().size, traits().displayScale).isTruncated();
}

void UILabelPeer::traitsDidChange() {
    laid_.reset();
    UIViewPeer::traitsDidChange();
}

Accessibility UILabelPeer::accessibility() const {
    auto accessibility = UIViewPeer::accessibility();
    if (accessibility.role == AccessibilityRole::None)
        accessibility.role = AccessibilityRole::StaticText;
    accessibility.isElement = !accessibility.label.empty() || !text_.value_or("").empty();
    return accessibility;
}

std::optional<std::string> UILabelPeer::shownText() const {
    return text_;
}

PropertyList::Dictionary UILabelPeer::inspectedProperties() const {
    const auto color = DesktopColor::resolve(textColor_, traits());
    PropertyList::Array components;
    for (const auto component : {color.red, color.green, color.blue, color.alpha})
        components.emplace_back(component);
    return {{"text", text_.value_or(std::string())},
            {"textColor", components},
            {"fontSize", fontStyle_.size},
            {"fontWeight", static_cast<int>(fontStyle_.weight)},
            {"font", PropertyList::Dictionary{{"size", fontStyle_.size},
                                              {"weight", static_cast<int>(fontStyle_.weight)}}},
            {"textAlignment", static_cast<int>(textAlignment_)},
            {"numberOfLines", static_cast<std::int64_t>(numberOfLines_)}};
}

void UILabelPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) {
    if (CGRectIsEmpty(bounds))
        return;
    const auto& layout = layoutFor(bounds.size, traits.displayScale);
    const QPointF origin(bounds.origin.x, bounds.origin.y + layout.topWithin(bounds.size.height));
    if (shadowColor_)
        layout.paint(painter, origin + QPointF(shadowOffset_.width, shadowOffset_.height),
                     DesktopColor::resolve(shadowColor_, traits).toQColor());
    layout.paint(painter, origin, DesktopColor::resolve(textColor_, traits).toQColor());
}
