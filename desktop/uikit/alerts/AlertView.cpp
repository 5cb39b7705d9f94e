#include "alerts/AlertView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "scrolling/UIScrollViewPeer.h"

#include <algorithm>
#include <utility>

namespace {

const Class classObject = Class::define<AlertView, UIControl>("AlertView");

constexpr Backdrop material{.blurRadius = 20, .saturation = 1.8};

} // namespace

AlertView::AlertView(const std::string& title, const std::optional<std::string>& message, Chosen chosen)
    : blur_(make<UIView>()),
      tint_(make<UIView>()),
      texts_(make<AlertTextView>(title, message)),
      scroll_(make<UIScrollView>()),
      choices_(make<AlertChoicesView>(std::move(chosen))) {
    peer().setAccessibility({}); // its buttons are elements, it is none itself
    setClipsToBounds(true);
    layer().setCornerRadius(cornerRadius);
    layer().peer().continuousCorners = true;
    blur_->layer().peer().backdrop = material;
    tint_->setBackgroundColor(DesktopColor::system(SystemColor::AlertPanel));
    for (const auto& view : {blur_, tint_}) {
        view->setUserInteractionEnabled(false);
        addSubview(view);
    }
    addSubview(texts_);
    addSubview(scroll_);
    scroll_->addSubview(choices_);
}

void AlertView::setActions(const std::vector<Ref<DesktopAlertAction>>& actions) {
    choices_->setActions(actions);
    peer().setNeedsLayout();
}

double AlertView::fullHeight() const {
    return texts_->fullHeight(AlertLayout::width) + choices_->fullHeight();
}

double AlertView::choicesHeight(double height) const {
    const auto left = height - texts_->fullHeight(AlertLayout::width);
    return std::min(choices_->fullHeight(), std::max(left, height / 2));
}

void AlertView::layoutSubviews() {
    FollowingControl::layoutSubviews();
    const auto height = bounds().size.height;
    const auto choices = choicesHeight(height);
    const auto texts = texts_->fullHeight(AlertLayout::width);
    blur_->setFrame(bounds());
    tint_->setFrame(bounds());
    texts_->setFrame(CGRectMake(0, 0, AlertLayout::width, height - choices));
    texts_->setUserInteractionEnabled(texts > height - choices);
    scroll_->setFrame(CGRectMake(0, height - choices, AlertLayout::width, choices));
    scroll_->setUserInteractionEnabled(choices_->fullHeight() > choices);
    choices_->setBelowTexts(texts > 0);
    choices_->setFrame(CGRectMake(0, 0, AlertLayout::width, choices_->fullHeight()));
    peerOf<UIScrollViewPeer>(*scroll_).setContentSize(choices_->bounds().size);
}

std::optional<CGPoint> AlertView::placeAmongChoices(CGPoint place) const {
    if (!CGRectContainsPoint(scroll_->frame(), place))
        return std::nullopt;
    return peer().convertTo(*choices_, place);
}

void AlertView::fingerMoved(CGPoint place) {
    if (const auto there = placeAmongChoices(place))
        choices_->fingerMoved(*there);
    else
        choices_->fingerGone();
}

void AlertView::fingerLifted(CGPoint place) {
    if (const auto there = placeAmongChoices(place))
        choices_->fingerLifted(*there);
}

void AlertView::fingerGone() {
    choices_->fingerGone();
}
