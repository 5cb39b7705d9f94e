#include "alerts/AlertView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <utility>

namespace {

const Class classObject = Class::define<AlertView, UIControl>("AlertView");

constexpr Backdrop material{.blurRadius = 20, .saturation = 1.8};

} // namespace

AlertView::AlertView(const std::string& title, const std::optional<std::string>& message, Chosen chosen)
    : chosen_(std::move(chosen)),
      blur_(make<UIView>()),
      tint_(make<UIView>()),
      texts_(make<AlertTextView>(title, message)) {
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
}

void AlertView::setActions(const std::vector<Ref<DesktopAlertAction>>& actions) {
    for (const auto& button : std::exchange(added_, {}))
        button->peer().removeFromSuperview();
    for (const auto& action : actions) {
        added_.push_back(make<AlertButtonView>(action));
        addSubview(added_.back());
    }
    sortButtons();
}

AlertLayout AlertView::buttonLayout() const {
    std::vector<double> widths;
    widths.reserve(added_.size());
    for (const auto& button : added_)
        widths.push_back(button->titleWidth());
    return {widths, 1 / peer().traits().displayScale};
}

void AlertView::sortButtons() {
    std::vector<UIAlertActionStyle> styles;
    styles.reserve(added_.size());
    for (const auto& button : added_)
        styles.push_back(button->action()->style());
    const auto layout = buttonLayout();
    const auto hasTexts = texts_->fullHeight(AlertLayout::width) > 0;
    buttons_.clear();
    for (const auto index : layout.order(styles)) {
        const auto isFirst = buttons_.empty();
        const auto& button = added_[index];
        button->setHasLines(hasTexts || (!layout.isBeside() && !isFirst), layout.isBeside() && !isFirst);
        buttons_.push_back(button);
    }
}

double AlertView::fullHeight() const {
    return texts_->fullHeight(AlertLayout::width) + buttonLayout().height();
}

void AlertView::layoutSubviews() {
    UIControl::layoutSubviews();
    sortButtons(); // the widths of titles are whole pixels, whose size may have changed
    const auto layout = buttonLayout();
    const auto top = std::max(0.0, bounds().size.height - layout.height());
    blur_->setFrame(bounds());
    tint_->setFrame(bounds());
    texts_->setFrame(CGRectMake(0, 0, AlertLayout::width, top));
    texts_->setUserInteractionEnabled(texts_->fullHeight(AlertLayout::width) > top);
    for (std::size_t place = 0; place < buttons_.size(); ++place)
        peer().place(*buttons_[place], layout.frame(place, top));
}

AlertButtonView* AlertView::buttonAt(CGPoint place) const {
    const auto found = std::ranges::find_if(
        buttons_, [place](const auto& button) { return CGRectContainsPoint(button->frame(), place); });
    return found != buttons_.end() ? found->get() : nullptr;
}

void AlertView::highlight(const AlertButtonView* touched) {
    for (const auto& button : buttons_)
        button->setHighlighted(&*button == touched);
}

bool AlertView::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    highlight(buttonAt(touch.locationInView(*this)));
    return UIControl::beginTrackingWithTouch(touch, event);
}

bool AlertView::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    highlight(buttonAt(touch.locationInView(*this)));
    return UIControl::continueTrackingWithTouch(touch, event);
}

void AlertView::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    UIControl::endTrackingWithTouch(touch, event);
    const auto* const touched = buttonAt(touch.locationInView(*this));
    if (touched != nullptr)
        chosen_(touched->action());
}

void AlertView::cancelTrackingWithEvent(UIEvent* event) {
    UIControl::cancelTrackingWithEvent(event);
    highlight(nullptr);
}
