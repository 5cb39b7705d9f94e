#include "UIKit/UILabel.h"

#include "DesktopFont.h"
#include "ObjectiveC/Class.h"
#include "views/UILabelPeer.h"

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
