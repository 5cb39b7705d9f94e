#include "Foundation/NSLog.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/Presentation.h"
#include "presentation/SheetPresentationView.h"
#include "views/UIViewPeer.h"

#include <utility>

UIViewController& UIViewControllerPeer::outermost() const {
    auto* outermost = controller_;
    while (outermost->peer().parent_ != nullptr)
        outermost = outermost->peer().parent_;
    return *outermost;
}

std::string UIViewControllerPeer::presentingProblem(const Ref<UIViewController>& controller) const {
    if (!controller)
        return "which is none";
    if (ownPresentation_)
        return "while it presents " + ownPresentation_->presented()->description();
    if (presentation_ != nullptr && presentation_->isUnderWay())
        return "while it is itself on its way";
    if (!view_ || view_->peer().window() == nullptr)
        return "whose view is not in the window hierarchy";
    const auto& other = controller->peer();
    const auto isShown = other.view_ && other.view_->peer().superview() != nullptr;
    if (other.presentation_ != nullptr || other.parent_ != nullptr || isShown ||
        controller.get() == controller_)
        return "which is shown already";
    return other.obstacle();
}

void UIViewControllerPeer::present(const Ref<UIViewController>& controller, bool animated,
                                   std::function<void()> completion) {
    const auto presenter = retain(&outermost());
    auto& peer = presenter->peer();
    if (const auto problem = peer.presentingProblem(controller); !problem.empty()) {
        NSLog("Attempt to present %@ on %@ %@", controller, presenter, problem);
        return;
    }
    const auto presentation = std::make_shared<Presentation>(*presenter, controller);
    peer.ownPresentation_ = presentation;
    presentation->begin(animated, std::move(completion));
}

void UIViewControllerPeer::dismiss(bool animated, std::function<void()> completion) {
    const auto kept = retain(&outermost());
    const auto& peer = kept->peer();
    if (const auto own = peer.ownPresentation_)
        own->dismiss(animated, std::move(completion));
    else if (peer.presentation_ != nullptr)
        peer.presentation_->dismiss(animated, std::move(completion));
}

void UIViewControllerPeer::leavePresentation() {
    if (const auto presentation = std::exchange(ownPresentation_, nullptr))
        presentation->presenterIsGone();
}

Ref<UIViewController> UIViewControllerPeer::presented() const {
    const auto& own = outermost().peer().ownPresentation_;
    return own ? own->presented() : nullptr;
}

void UIViewControllerPeer::abandonPresented() {
    if (const auto own = ownPresentation_)
        own->abandon();
}

Ref<PresentationView> UIViewControllerPeer::makePresentationView() {
    return make<SheetPresentationView>(*controller_);
}
