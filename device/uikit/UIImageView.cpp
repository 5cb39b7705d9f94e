#include "UIKit/UIImageView.h"

#include "FrameworkClass.h"
#include "UIViewPeer.h"

namespace {

const FrameworkClassOf<UIImageView, UIView> frameworkClass("UIImageView");

} // namespace

UIImageView::UIImageView() = default;

UIImageView::UIImageView(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

Ref<UIImage> UIImageView::image() const {
    return send<"-[UIImageView image]", Ref<UIImage>>(*this);
}

void UIImageView::setImage(const Ref<UIImage>& image) {
    send<"-[UIImageView setImage:]", void>(*this, image);
}
