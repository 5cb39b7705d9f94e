#pragma once

#include "controls/FollowingControl.h"
#include "menus/DesktopMenu.h"
#include "menus/MenuRowView.h"

#include <functional>
#include <vector>

/// The panel of an open menu: its rows, and the finger that moves over them, wherever it came down. Made by
/// the menu's presentation.
class MenuView final : public FollowingControl {
public:
    using Chosen = std::function<void(const Ref<DesktopAction>& action)>;

    static constexpr double width = 250; ///< points
    static constexpr double cornerRadius = 13;

    /// \param chosen called when a finger was lifted over an action that is not disabled
    MenuView(const Ref<DesktopMenu>& menu, Chosen chosen);

    /// The height of all rows, and of the title when there is one.
    [[nodiscard]] double fullHeight() const;

    [[nodiscard]] const std::vector<Ref<MenuRowView>>& rows() const { return rows_; }

    // FollowingControl:
    void fingerMoved(CGPoint place) override;
    void fingerLifted(CGPoint place) override;
    void fingerGone() override;

    // UIView:
    void layoutSubviews() override;

private:
    void addTitle(const std::string& title);
    [[nodiscard]] MenuRowView* rowAt(CGPoint place) const;

    Chosen chosen_;
    Ref<UIView> panel_; ///< cuts the rows off at the round corners, which the shadow around is not
    Ref<UIView> blur_;
    Ref<UIView> tint_;
    Ref<UILabel> title_; ///< empty without one
    std::vector<Ref<MenuRowView>> rows_;
};
