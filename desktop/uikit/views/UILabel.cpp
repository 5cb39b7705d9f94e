#include "UIKit/UILabel.h"

#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <utility>

namespace {

const Class classObject = Class::define<UILabel, UIView>("UILabel");

} // namespace

UILabel::UILabel() : UILabel(std::make_unique<UILabelPeer>()) {}

UILabel::UILabel(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

void UILabel::setText(const std::optional<std::string>& text) {
    peerOf<UILabelPeer>(*this).setText(text);
}

void UILabel::setFont(const Ref<UIFont>& font) {
    peerOf<UILabelPeer>(*this).setFontStyle(DesktopFont::styleOf(font));
}

void UILabel::setTextColor(const Ref<UIColor>& color) {
    peerOf<UILabelPeer>(*this).setTextColor(color);
}

void UILabel::setTextAlignment(NSTextAlignment alignment) {
    peerOf<UILabelPeer>(*this).setTextAlignment(alignment);
}

void UILabel::setNumberOfLines(int lines) {
    peerOf<UILabelPeer>(*this).setNumberOfLines(static_cast<std::size_t>(std::max(lines, 0)));
}

void UILabel::setLineBreakMode(NSLineBreakMode mode) {
    peerOf<UILabelPeer>(*this).setLineBreakMode(mode);
}

void UILabel::setAdjustsFontSizeToFitWidth(bool adjusts) {
    peerOf<UILabelPeer>(*this).setAdjustsFontSizeToFitWidth(adjusts);
}

void UILabel::setMinimumScaleFactor(double factor) {
    peerOf<UILabelPeer>(*this).setMinimumScaleFactor(factor);
}

// No font here is that of a text style, and any other keeps its size.
void UILabel::setAdjustsFontForContentSizeCategory(bool /*adjusts*/) {}

void UILabel::setShadowColor(const Ref<UIColor>& color) {
    peerOf<UILabelPeer>(*this).setShadowColor(color);
}

void UILabel::setShadowOffset(CGSize offset) {
    peerOf<UILabelPeer>(*this).setShadowOffset(offset);
}
