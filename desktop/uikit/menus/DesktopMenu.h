#pragma once

#include "UIKit/UIMenu.h"
#include "menus/DesktopAction.h"

/// A list of actions, as the one who shows it reads it. Immutable.
class DesktopMenu final : public UIMenu {
public:
    DesktopMenu(std::string title, std::vector<Ref<DesktopAction>> actions)
        : title_(std::move(title)),
          actions_(std::move(actions)) {}

    [[nodiscard]] const std::string& title() const { return title_; }

    [[nodiscard]] const std::vector<Ref<DesktopAction>>& actions() const { return actions_; }

private:
    std::string title_;
    std::vector<Ref<DesktopAction>> actions_;
};
