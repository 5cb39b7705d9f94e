#include "UIKit/UIStackView.h"

#include "ObjectiveC/Class.h"
#include "layout/UIStackViewPeer.h"

namespace {

const Class classObject = Class::define<UIStackView, UIView>("UIStackView");

} // namespace

UIStackView::UIStackView() : UIView(std::make_unique<UIStackViewPeer>()) {}

void UIStackView::setAxis(UILayoutConstraintAxis axis) {
    peerOf<UIStackViewPeer>(*this).setAxis(axis);
}

void UIStackView::setDistribution(UIStackViewDistribution distribution) {
    peerOf<UIStackViewPeer>(*this).setDistribution(distribution);
}

void UIStackView::setAlignment(UIStackViewAlignment alignment) {
    peerOf<UIStackViewPeer>(*this).setAlignment(alignment);
}

void UIStackView::setSpacing(double spacing) {
    peerOf<UIStackViewPeer>(*this).setSpacing(spacing);
}

void UIStackView::setLayoutMarginsRelativeArrangement(bool relative) {
    peerOf<UIStackViewPeer>(*this).setLayoutMarginsRelativeArrangement(relative);
}

void UIStackView::addArrangedSubview(const Ref<UIView>& view) {
    peerOf<UIStackViewPeer>(*this).addArrangedSubview(view);
}
