#pragma once

#include "layout/LayoutAnchor.h"

#include <utility>

/// What every anchor has on the desktop, of whichever kind it is.
class AnchoredPlace {
public:
    virtual ~AnchoredPlace() = default;

    [[nodiscard]] virtual const LayoutAnchor& anchor() const = 0;
};

/// An anchor of the contract's class `Kind`.
template <class Kind>
class DesktopLayoutAnchor final : public Kind, public AnchoredPlace {
public:
    explicit DesktopLayoutAnchor(LayoutAnchor anchor) : anchor_(std::move(anchor)) {}

    // AnchoredPlace:
    [[nodiscard]] const LayoutAnchor& anchor() const override { return anchor_; }

private:
    LayoutAnchor anchor_;
};
