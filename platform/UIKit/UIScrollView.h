#pragma once

#include "UIKit/UIView.h"

#include <memory>

/// A view whose contents are larger than itself and are moved with the finger.
class UIScrollView : public UIView {
public:
    UIScrollView();

protected:
    explicit UIScrollView(std::unique_ptr<UIViewPeer> peer);
};
