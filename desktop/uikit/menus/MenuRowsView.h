#pragma once

#include "controls/FollowingControl.h"
#include "menus/DesktopMenu.h"
#include "menus/MenuRowView.h"

#include <functional>
#include <vector>

/// The rows of an open menu, one below another, and the finger that moves over them. Made by the menu's view,
/// which lets it scroll, and which tells it of a finger that came down elsewhere.
class MenuRowsView final : public FollowingControl {
public:
    using Chosen = std::function<void(const Ref<DesktopAction>& action)>;

    /// \param chosen called when a finger was lifted over an action that is not disabled
    MenuRowsView(const DesktopMenu& menu, Chosen chosen);

    [[nodiscard]] const std::vector<Ref<MenuRowView>>& rows() const { return rows_; }

    /// The height of all of them.
    [[nodiscard]] double fullHeight() const;

    // FollowingControl:
    void fingerMoved(CGPoint place) override;
    void fingerLifted(CGPoint place) override;
    void fingerGone() override;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] MenuRowView* rowAt(CGPoint place) const;

    Chosen chosen_;
    std::vector<Ref<MenuRowView>> rows_;
};
