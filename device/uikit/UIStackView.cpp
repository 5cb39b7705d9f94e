#include "UIKit/UIStackView.h"

#include "FrameworkClass.h"

namespace {

const FrameworkClassOf<UIStackView, UIView> frameworkClass("UIStackView");

} // namespace

UIStackView::UIStackView() = default;

void UIStackView::setAxis(UILayoutConstraintAxis axis) {
    send<"-[UIStackView setAxis:]", void>(*this, axis);
}

void UIStackView::setDistribution(UIStackViewDistribution distribution) {
    send<"-[UIStackView setDistribution:]", void>(*this, distribution);
}

void UIStackView::setAlignment(UIStackViewAlignment alignment) {
    send<"-[UIStackView setAlignment:]", void>(*this, alignment);
}

void UIStackView::setSpacing(double spacing) {
    send<"-[UIStackView setSpacing:]", void>(*this, spacing);
}

void UIStackView::setLayoutMarginsRelativeArrangement(bool relative) {
    send<"-[UIStackView setLayoutMarginsRelativeArrangement:]", void>(*this, relative);
}

void UIStackView::addArrangedSubview(const Ref<UIView>& view) {
    send<"-[UIStackView addArrangedSubview:]", void>(*this, view);
}
