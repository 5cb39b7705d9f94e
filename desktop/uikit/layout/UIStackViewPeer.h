#pragma once

#include "LinearExpression.h"
#include "UIKit/UIStackView.h"
#include "layout/LayoutAnchor.h"
#include "views/UIViewPeer.h"

#include <vector>

class LayoutProblem;

/// The desktop's half of a stack view: what it asks of its arranged subviews.
class UIStackViewPeer final : public UIViewPeer {
public:
    using Object = UIStackView;

    /// Adds it as a subview too, and lets constraints decide its frame.
    void addArrangedSubview(const Ref<UIView>& view);

    void setAxis(UILayoutConstraintAxis axis);
    void setDistribution(UIStackViewDistribution distribution);
    void setAlignment(UIStackViewAlignment alignment);
    /// Points between two arranged subviews.
    void setSpacing(double spacing);
    /// Whether the arranged subviews keep to the layout margins instead of the bounds.
    void setLayoutMarginsRelativeArrangement(bool relative);

    // UIViewPeer:
    void addOwnConstraints(LayoutProblem& problem) const override;

private:
    /// Where one arranged subview lies along and across the axis.
    struct Place {
        LinearExpression begin;
        LinearExpression end;
        LinearExpression crossBegin;
        LinearExpression crossEnd;
    };

    [[nodiscard]] Place placeOf(LayoutProblem& problem, UIView& view, LayoutGuide guide) const;
    [[nodiscard]] std::vector<Place> shownPlaces(LayoutProblem& problem) const;
    void addAlong(LayoutProblem& problem, const Place& own, const std::vector<Place>& places) const;
    void addAcross(LayoutProblem& problem, const Place& own, const Place& place) const;
    static void addEqualGaps(LayoutProblem& problem, const std::vector<Place>& places);
    static void addEqualLengths(LayoutProblem& problem, const std::vector<Place>& places);

    std::vector<Ref<UIView>> arranged_;
    UILayoutConstraintAxis axis_ = UILayoutConstraintAxis::Horizontal;
    UIStackViewDistribution distribution_ = UIStackViewDistribution::Fill;
    UIStackViewAlignment alignment_ = UIStackViewAlignment::Fill;
    double spacing_ = 0;
    bool marginsRelative_ = false;
};
