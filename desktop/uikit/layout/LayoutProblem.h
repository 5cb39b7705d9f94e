#pragma once

#include "LinearSolver.h"
#include "layout/LayoutAnchor.h"

#include <map>
#include <optional>
#include <vector>

class UIViewPeer;

/// One layout by constraints: the views within a host whose own frame is given, and all that is asked of
/// them. Made for one layout pass.
class LayoutProblem {
public:
    /// What is known of the host's size; an absent length is to be as small as the rest allows.
    struct HostSize {
        std::optional<double> width;
        std::optional<double> height;
    };

    LayoutProblem(UIView& host, const HostSize& size);

    /// Whether `view` has anything in it that constraints place.
    [[nodiscard]] static bool isHost(const UIView& view);

    /// Places the views within the host.
    void apply() const;
    /// The host's size.
    [[nodiscard]] CGSize hostSize() const;

    /// For views that ask something of those within them. An anchor in the host's coordinates, which across
    /// grow from the leading side to the trailing one; nothing when its view is gone or outside the host.
    [[nodiscard]] std::optional<LinearExpression> expression(const LayoutAnchor& anchor) const;
    void add(const LinearConstraint& constraint);

private:
    /// A view's unknowns, in points of its superview.
    struct Unknowns {
        LinearVariable left;
        LinearVariable top;
        LinearVariable width;
        LinearVariable height;
    };

    /// One direction of a view.
    struct Extent {
        LinearExpression begin;
        LinearExpression length;
    };

    /// Whether the view's frame is given, so that what is within it is a problem of its own.
    [[nodiscard]] bool isPlacedAsAWhole(const UIView& view) const;
    void collect(UIView& view);
    void addHostSize(const HostSize& size);
    void addGivenFrame(const UIView& view, const Unknowns& unknowns);
    void addIntrinsicSizes();
    void addIntrinsicSize(const UIViewPeer& view, const Unknowns& unknowns);
    void addConstraints(const UIView& view);
    /// \returns whether a text got another width
    bool wrapTexts();
    /// Once, until the host's constraints can all hold again.
    void logContradiction() const;
    [[nodiscard]] std::optional<LinearExpression> originInHost(const UIView& view, bool horizontal) const;
    [[nodiscard]] std::optional<Extent> extent(const UIView& view, LayoutGuide guide, bool horizontal) const;
    [[nodiscard]] CGRect solvedFrame(const Unknowns& unknowns) const;

    UIView& host_;
    LinearSolver solver_;
    std::vector<UIView*> views_; ///< the host first, each before those within it
    std::map<const UIView*, Unknowns> unknowns_;
    std::vector<LinearSolver::ConstraintId> intrinsicSizes_;
    bool isContradictory_ = false; ///< not everything that is required can hold
};
