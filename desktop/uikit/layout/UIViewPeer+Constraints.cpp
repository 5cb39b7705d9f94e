#include "layout/LayoutProblem.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

ViewLayout& UIViewPeer::layoutRules() const {
    return *layout_;
}

bool UIViewPeer::isFrameGiven() const {
    return layout_->frameIsGiven;
}

void UIViewPeer::setFrameGiven(bool given) {
    layout_->frameIsGiven = given;
    setNeedsConstraintLayout();
}

void UIViewPeer::setNeedsConstraintLayout() {
    auto* host = this;
    while (!host->isFrameGiven() && host->superview_ != nullptr)
        host = &host->superview_->peer();
    host->setNeedsLayout();
}

void UIViewPeer::layOutByConstraints() {
    if (!LayoutProblem::isHost(*view_))
        return;
    const auto size = layerPeer().bounds().size;
    LayoutProblem(*view_, {.width = size.width, .height = size.height}).apply();
}

CGSize UIViewPeer::fittingSize(std::optional<double> width) const {
    return LayoutProblem(*view_, {.width = width, .height = std::nullopt}).hostSize();
}
