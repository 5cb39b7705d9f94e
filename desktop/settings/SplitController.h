#pragma once

#include "UIKit/UIViewController.h"

/// Shows two controllers beside each other: the first in a column, the second in the rest of the room. Made
/// by the Settings application on a tablet.
class SplitController final : public UIViewController {
public:
    static constexpr double primaryWidth = 320; ///< points

    SplitController(const Ref<UIViewController>& primary, const Ref<UIViewController>& secondary);
};
