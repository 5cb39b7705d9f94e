#include "layout/NSLayoutConstraint.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

namespace {

const Class classObject = Class::define<NSLayoutConstraint>("NSLayoutConstraint");

/// The nearest view that both are within; null when they are in different trees.
UIView* nearestCommonView(UIView& first, const UIView& second) {
    for (auto* view = &first; view != nullptr; view = view->peer().superview()) {
        if (second.peer().isDescendantOf(*view))
            return view;
    }
    return nullptr;
}

} // namespace

void NSLayoutConstraint::activate(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    for (const auto& constraint : constraints)
        constraint->activate();
}

void NSLayoutConstraint::deactivate(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    for (const auto& constraint : constraints)
        constraint->deactivate();
}

void NSLayoutConstraint::activate() {
    if (isActive())
        return;
    const auto first = terms_.first.view.strong();
    const auto second = terms_.second ? terms_.second->view.strong() : first;
    auto* const holder = first && second ? nearestCommonView(*first, *second) : nullptr;
    if (holder == nullptr) {
        NSLog("A constraint's views are not in one tree; it is left out: %@", description());
        return;
    }
    holder_ = Weak<UIView>(holder);
    holder->peer().layoutRules().constraints.push_back(retain(this));
    changed();
}

void NSLayoutConstraint::deactivate() {
    const auto holder = holder_.strong();
    if (!holder)
        return;
    const auto kept = retain(this);
    changed();
    holder_ = Weak<UIView>();
    std::erase(holder->peer().layoutRules().constraints, kept);
}

void NSLayoutConstraint::setConstant(double constant) {
    terms_.constant = constant;
    changed();
}

void NSLayoutConstraint::setPriority(double priority) {
    terms_.priority = priority;
    changed();
}

void NSLayoutConstraint::changed() const {
    if (const auto holder = holder_.strong())
        holder->peer().setNeedsConstraintLayout();
}
