#pragma once

#include "layout/LayoutAnchor.h"

/// What every anchor has on the desktop, of whichever kind it is.
class AnchoredPlace {
public:
    explicit AnchoredPlace(LayoutAnchor anchor) : anchor_(std::move(anchor)) {}

    [[nodiscard]] const LayoutAnchor& anchor() const { return anchor_; }

private:
    LayoutAnchor anchor_;
};

/// An anchor of the contract's class `Kind`.
template <class Kind>
class DesktopLayoutAnchor final : public Kind, public AnchoredPlace {
public:
    using AnchoredPlace::AnchoredPlace;
};
