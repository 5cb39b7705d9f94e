#include "presentation/PresentationView.h"

#include "ObjectiveC/Class.h"
#include "controllers/UIViewControllerPeer.h"
#include "typing/TextFieldContent.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<PresentationView, UIView>("PresentationView");

void collectFields(const UIView& view, std::vector<Presented::Field>& fields) {
    if (const auto* const field = peerIf<TextFieldContent>(view))
        fields.push_back({.placeholder = field->fieldPlaceholder(),
                          .text = field->fieldText(),
                          .isFirstResponder = field->fieldIsFirstResponder()});
    for (const auto& subview : view.peer().subviews())
        collectFields(*subview, fields);
}

} // namespace

PresentationView::PresentationView(UIViewController& controller)
    : controller_(Weak<UIViewController>(&controller)) {
    setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    peer().setTraitOverride([](Traits& traits) { traits.elevated = true; });
    static_cast<void>(controller.view());
}

void PresentationView::cover(UIView& beneath, bool mayStepBack) {
    beneath_ = Weak<UIView>(&beneath);
    mayStepBack_ = mayStepBack;
    beneath.peer().setTintDimmed(true);
    setTakesTouches(false);
    didCover();
}

void PresentationView::uncover() {
    const auto covered = beneath();
    if (!covered)
        return;
    willUncover();
    covered->peer().setTintDimmed(false);
    shownView().peer().setHidden(false);
    beneath_ = {};
}

void PresentationView::setTakesTouches(bool takes) {
    for (const auto& subview : peer().subviews())
        subview->setUserInteractionEnabled(takes);
}

void PresentationView::beginToGo() {
    setTakesTouches(false);
    if (const auto covered = beneath())
        covered->peer().setTintDimmed(false);
}

void PresentationView::hideContent() {
    shownView().peer().setHidden(true);
}

void PresentationView::keyboardHeightDidChange() {
    peer().setNeedsLayout();
    peer().layoutIfNeeded();
}

std::vector<Presented::Field> PresentationView::fields() const {
    std::vector<Field> fields;
    collectFields(shownView(), fields);
    return fields;
}
