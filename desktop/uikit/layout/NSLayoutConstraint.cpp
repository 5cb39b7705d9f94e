#include "UIKit/NSLayoutConstraint.h"

#include "ObjectiveC/Class.h"
#include "layout/NSLayoutConstraintPeer.h"

#include <utility>

namespace {

const Class classObject = Class::define<NSLayoutConstraint>("NSLayoutConstraint");

} // namespace

NSLayoutConstraint::NSLayoutConstraint(std::unique_ptr<NSLayoutConstraintPeer> peer)
    : peer_(std::move(peer)) {
    peer_->constraint_ = this;
}

NSLayoutConstraint::~NSLayoutConstraint() = default;

void NSLayoutConstraint::activateConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    for (const auto& constraint : constraints)
        constraint->peer().activate();
}
