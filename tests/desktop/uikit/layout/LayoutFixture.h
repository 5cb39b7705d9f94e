#pragma once

#include "TestDevice.h"
#include "layout/NSLayoutConstraintPeer.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"
#include "views/ViewLayout.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

/// A view with an intrinsic size, which can be changed.
class SizedView final : public UIView {
public:
    explicit SizedView(std::optional<double> width = std::nullopt,
                       std::optional<double> height = std::nullopt);

    void setIntrinsicWidth(double width);
};

/// A host of 300 x 200 points, and shorthand for constraints within it.
class LayoutFixture : public testing::Test {
protected:
    LayoutFixture();

    /// A view in the host, or in another view, that constraints place.
    Ref<SizedView> add(std::optional<double> width = std::nullopt,
                       std::optional<double> height = std::nullopt);
    static Ref<SizedView> addTo(UIView& superview, std::optional<double> width = std::nullopt,
                                std::optional<double> height = std::nullopt);

    NSLayoutConstraintPeer& constrain(NSLayoutConstraintPeer::Terms terms);
    NSLayoutConstraintPeer& equal(const LayoutAnchor& first, const LayoutAnchor& second, double constant = 0);
    NSLayoutConstraintPeer& equal(const LayoutAnchor& first, double constant);
    /// Keeps all four edges of a view to the host's, less an inset.
    void fill(UIView& view, double inset = 0);

    void layOut() { host->peer().layoutIfNeeded(); }

    TestDevice device;
    std::vector<Ref<NSLayoutConstraint>> constraints; ///< all that were made
    Ref<UIView> host = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(10, 20, 300, 200));
};
