#include "alerts/UIAlertControllerPeer.h"

#include "Foundation/NSLog.h"
#include "alerts/AlertPresentationView.h"
#include "presentation/Presentation.h"

#include <algorithm>

namespace {

bool cancels(const Ref<DesktopAlertAction>& action) {
    return action->style() == UIAlertActionStyle::Cancel;
}

} // namespace

void UIAlertControllerPeer::addAction(const Ref<DesktopAlertAction>& action) {
    if (cancels(action) && std::ranges::any_of(actions_, cancels)) {
        NSLog("An alert was to have a second button that cancels: %@", action->title());
        return;
    }
    actions_.push_back(action);
    if (isViewLoaded())
        dynamic_cast<AlertView&>(view()).setActions(actions_);
}

void UIAlertControllerPeer::choose(const Ref<DesktopAlertAction>& action) {
    if (presentation() != nullptr && !presentation()->isUnderWay())
        presentation()->dismiss(true, [action] { action->perform(); });
}

void UIAlertControllerPeer::chooseCancel() {
    const auto found = std::ranges::find_if(actions_, cancels);
    if (found != actions_.end())
        choose(*found);
}

Ref<UIView> UIAlertControllerPeer::makeView() {
    auto view =
        make<AlertView>(title(), message_, [this](const Ref<DesktopAlertAction>& action) { choose(action); });
    view->setActions(actions_);
    return view;
}

Ref<PresentationView> UIAlertControllerPeer::makePresentationView() {
    return make<AlertPresentationView>(controller());
}
