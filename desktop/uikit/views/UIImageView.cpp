#include "UIKit/UIImageView.h"

#include "ObjectiveC/Class.h"
#include "views/UIImageViewPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<UIImageView, UIView>("UIImageView");

} // namespace

UIImageView::UIImageView() : UIImageView(std::make_unique<UIImageViewPeer>()) {}

UIImageView::UIImageView(std::unique_ptr<UIViewPeer> peer) : UIView(std::move(peer)) {}

Ref<UIImage> UIImageView::image() const {
    return peerOf<UIImageViewPeer>(*this).image();
}

void UIImageView::setImage(const Ref<UIImage>& image) {
    peerOf<UIImageViewPeer>(*this).setImage(dynamicCast<DesktopImage>(image));
}
