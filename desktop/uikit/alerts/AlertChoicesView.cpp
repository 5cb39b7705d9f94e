#include "alerts/AlertChoicesView.h"

#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <utility>

namespace {

const Class classObject = Class::define<AlertChoicesView, UIControl>("AlertChoicesView");

} // namespace

AlertChoicesView::AlertChoicesView(Chosen chosen) : chosen_(std::move(chosen)) {
    peer().setAccessibility({}); // its buttons are elements, it is none itself
}

void AlertChoicesView::setActions(const std::vector<Ref<DesktopAlertAction>>& actions) {
    for (const auto& button : std::exchange(added_, {}))
        button->peer().removeFromSuperview();
    for (const auto& action : actions) {
        added_.push_back(make<AlertButtonView>(action));
        addSubview(added_.back());
    }
    sortButtons();
}

void AlertChoicesView::setBelowTexts(bool below) {
    isBelowTexts_ = below;
    peer().setNeedsLayout();
}

AlertLayout AlertChoicesView::buttonLayout() const {
    std::vector<double> widths;
    widths.reserve(added_.size());
    for (const auto& button : added_)
        widths.push_back(button->titleWidth());
    return {widths, 1 / peer().traits().displayScale};
}

void AlertChoicesView::sortButtons() {
    std::vector<UIAlertActionStyle> styles;
    styles.reserve(added_.size());
    for (const auto& button : added_)
        styles.push_back(button->action()->style());
    const auto layout = buttonLayout();
    buttons_.clear();
    for (const auto index : layout.order(styles)) {
        const auto isFirst = buttons_.empty();
        const auto& button = added_[index];
        button->setHasLines(isBelowTexts_ || (!layout.isBeside() && !isFirst), layout.isBeside() && !isFirst);
        buttons_.push_back(button);
    }
}

void AlertChoicesView::layoutSubviews() {
    FollowingControl::layoutSubviews();
    sortButtons(); // the widths of titles are whole pixels, whose size may have changed
    const auto layout = buttonLayout();
    for (std::size_t place = 0; place < buttons_.size(); ++place)
        peer().place(*buttons_[place], layout.frame(place));
}

AlertButtonView* AlertChoicesView::buttonAt(CGPoint place) const {
    const auto found = std::ranges::find_if(
        buttons_, [place](const auto& button) { return CGRectContainsPoint(button->frame(), place); });
    return found != buttons_.end() ? found->get() : nullptr;
}

void AlertChoicesView::highlight(const AlertButtonView* touched) {
    for (const auto& button : buttons_)
        button->setHighlighted(&*button == touched);
}

void AlertChoicesView::fingerMoved(CGPoint place) {
    highlight(buttonAt(place));
}

void AlertChoicesView::fingerLifted(CGPoint place) {
    const auto* const touched = buttonAt(place);
    if (touched != nullptr)
        chosen_(touched->action());
}

void AlertChoicesView::fingerGone() {
    highlight(nullptr);
}
