#pragma once

#include "UIKit/UIAction.h"

#include <string_view>
#include <vector>

/// A list of actions that opens from a button. Immutable.
class UIMenu : public NSObject {
public:
    [[nodiscard]] static Ref<UIMenu> menuWithTitle(std::string_view title,
                                                   const std::vector<Ref<UIAction>>& children);
};
