#pragma once

#include "UIKit/UIView.h"

class UIScrollViewPeer;

/// A view whose contents are larger than itself and are moved with the finger. What it does is its peer's;
/// a kind of scroll view derives both. Made by whoever shows it.
class UIScrollView : public UIView {
public:
    UIScrollView();

protected:
    explicit UIScrollView(std::unique_ptr<UIScrollViewPeer> peer);
};
