#pragma once

#include "UIKit/UIView.h"

class UIScrollViewPeer;

/// The two thin bars that show what part of a scroll view's contents is in view, while they move. Made and
/// owned by the scroll view's peer; their views are its subviews.
class ScrollIndicators {
public:
    explicit ScrollIndicators(UIScrollViewPeer& scroll);

    /// Brings the bars to where the contents now stand.
    void place();
    void show();
    /// Lets the bars fade away in a moment.
    void fade();

private:
    void setAlpha(double alpha);

    UIScrollViewPeer& scroll_;
    Ref<UIView> vertical_;
    Ref<UIView> horizontal_;
};
