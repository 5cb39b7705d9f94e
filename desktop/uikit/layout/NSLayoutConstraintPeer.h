#pragma once

#include "LinearConstraint.h"
#include "ObjectiveC/Weak.h"
#include "UIKit/NSLayoutConstraint.h"
#include "layout/LayoutAnchor.h"
#include "objects/PeerOf.h"

#include <optional>
#include <utility>

/// The desktop's half of a constraint: a relation between two anchors, or an anchor and a number: first =
/// factor x second + constant, or <= or >=. While it is active it is kept by the nearest view that both
/// anchors' views are within, and it holds in each layout of that view. Made with the constraint.
class NSLayoutConstraintPeer {
public:
    using Object = NSLayoutConstraint;

    struct Terms {
        LayoutAnchor first;
        LinearRelation relation = LinearRelation::Equal;
        std::optional<LayoutAnchor> second = std::nullopt;
        double factor = 1;   ///< of the second anchor
        double constant = 0; ///< points
        double priority = LinearConstraint::required;
    };

    explicit NSLayoutConstraintPeer(Terms terms) : terms_(std::move(terms)) {}

    /// A constraint of those terms.
    [[nodiscard]] static Ref<NSLayoutConstraint> makeConstraint(Terms terms);

    [[nodiscard]] const Terms& terms() const { return terms_; }

    [[nodiscard]] bool isActive() const { return static_cast<bool>(holder_.strong()); }

    /// A constraint between views that are not in one tree is refused with a log line.
    void activate();

private:
    friend class NSLayoutConstraint;

    NSLayoutConstraint* constraint_ = nullptr;
    Terms terms_;
    Weak<UIView> holder_;
};
