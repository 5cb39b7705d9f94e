#include "UIKit/NSLayoutConstraint.h"

#include "FrameworkClass.h"

/// Nothing is known of a constraint beside its Objective-C object.
class NSLayoutConstraintPeer {};

namespace {

class SystemLayoutConstraint final : public NSLayoutConstraint {
public:
    SystemLayoutConstraint() : NSLayoutConstraint(nullptr) {}
};

const FrameworkClassOf<SystemLayoutConstraint> frameworkClass("NSLayoutConstraint");

} // namespace

NSLayoutConstraint::NSLayoutConstraint(std::unique_ptr<NSLayoutConstraintPeer> peer)
    : peer_(std::move(peer)) {}

NSLayoutConstraint::~NSLayoutConstraint() = default;

void NSLayoutConstraint::activateConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    sendToClass<"+[NSLayoutConstraint activateConstraints:]", void>(constraints);
}
