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
    : AlertView(title, message, make<AlertChoicesView>(std::move(chosen))) {}

AlertView::AlertView(const std::string& title, const std::optional<std::string>& message,
                     const Ref<AlertChoicesView>& choices)
    : ChoicePanel(choices),
      blur_(make<UIView>()),
      texts_(make<AlertTextView>(title, message)),
      choices_(choices) {
    setClipsToBounds(true);
    layer().setCornerRadius(cornerRadius);
    layer().peer().continuousCorners = true;
    blur_->layer().peer().backdrop = material;
    blur_->setBackgroundColor(DesktopColor::system(SystemColor::AlertPanel));
    blur_->setUserInteractionEnabled(false);
    addSubview(blur_);
    addSubview(texts_);
    addSubview(scroll());
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
    ChoicePanel::layoutSubviews();
    const auto height = bounds().size.height;
    const auto choices = choicesHeight(height);
    const auto texts = texts_->fullHeight(AlertLayout::width);
    blur_->setFrame(bounds());
    texts_->setFrame(CGRectMake(0, 0, AlertLayout::width, height - choices));
    texts_->setUserInteractionEnabled(texts > height - choices);
    choices_->setBelowTexts(texts > 0);
    placeChoices(CGRectMake(0, height - choices, AlertLayout::width, choices), choices_->fullHeight());
}
