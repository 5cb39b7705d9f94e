#pragma once

#include "LinearConstraint.h"
#include "ObjectiveC/NSObject.h"
#include "layout/LayoutAnchor.h"

#include <optional>
#include <vector>

/// A relation between two anchors, or an anchor and a number: first = factor x second + constant, or <= or
/// >=. While it is active it is kept by the nearest view that both anchors' views are within, and it holds in
/// each layout of that view.
class NSLayoutConstraint final : public NSObject {
public:
    struct Terms {
        LayoutAnchor first;
        LinearRelation relation = LinearRelation::Equal;
        std::optional<LayoutAnchor> second = std::nullopt;
        double factor = 1;   ///< of the second anchor
        double constant = 0; ///< points
        double priority = LinearConstraint::required;
    };

    explicit NSLayoutConstraint(Terms terms) : terms_(std::move(terms)) {}

    /// Activates constraints between views that are in one tree; one whose views are not is refused with a
    /// log line.
    static void activate(const std::vector<Ref<NSLayoutConstraint>>& constraints);
    static void deactivate(const std::vector<Ref<NSLayoutConstraint>>& constraints);

    [[nodiscard]] const Terms& terms() const { return terms_; }

    [[nodiscard]] bool isActive() const { return static_cast<bool>(holder_.strong()); }

    void setConstant(double constant);
    void setPriority(double priority);

private:
    void activate();
    void deactivate();
    void changed() const;

    Terms terms_;
    Weak<UIView> holder_;
};
