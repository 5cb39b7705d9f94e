#include "layout/NSLayoutConstraintPeer.h"

#include "Foundation/NSLog.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

#include <memory>
#include <vector>

namespace {

class DesktopConstraint final : public NSLayoutConstraint {
public:
    explicit DesktopConstraint(std::unique_ptr<NSLayoutConstraintPeer> peer)
        : NSLayoutConstraint(std::move(peer)) {}
};

/// The nearest view that both are within; null when they are in different trees.
UIView* nearestCommonView(UIView& first, const UIView& second) {
    for (auto* view = &first; view != nullptr; view = view->peer().superview()) {
        if (second.peer().isDescendantOf(*view))
            return view;
    }
    return nullptr;
}

} // namespace

Ref<NSLayoutConstraint> NSLayoutConstraintPeer::makeConstraint(Terms terms) {
    return make<DesktopConstraint>(std::make_unique<NSLayoutConstraintPeer>(std::move(terms)));
}

void NSLayoutConstraintPeer::activate() {
    if (isActive())
        return;
    const auto first = terms_.first.view.strong();
    const auto second = terms_.second ? terms_.second->view.strong() : first;
    auto* const holder = first && second ? nearestCommonView(*first, *second) : nullptr;
    if (holder == nullptr) {
        NSLog("A constraint's views are not in one tree; it is left out: %@", constraint_->description());
        return;
    }
    holder_ = Weak<UIView>(holder);
    holder->peer().layoutRules().constraints.push_back(retain(constraint_));
    holder->peer().setNeedsConstraintLayout();
}
