#pragma once

#include "menus/DesktopMenu.h"
#include "menus/MenuRowsView.h"
#include "scrolling/ChoicePanel.h"

#include <vector>

/// The panel of an open menu: its title, and its rows, which a finger chooses from wherever it came down.
/// Made by the menu's presentation.
class MenuView final : public ChoicePanel {
public:
    using Chosen = MenuRowsView::Chosen;

    static constexpr double width = 250; ///< points
    static constexpr double cornerRadius = 13;

    /// \param chosen called when a finger was lifted over an action that is not disabled
    MenuView(const DesktopMenu& menu, Chosen chosen);

    /// The height with all rows, and with the title when there is one.
    [[nodiscard]] double fullHeight() const;

    [[nodiscard]] const std::vector<Ref<MenuRowView>>& rows() const { return rows_->rows(); }

    // UIView:
    void layoutSubviews() override;

private:
    MenuView(const DesktopMenu& menu, const Ref<MenuRowsView>& rows);

    void addTitle(const std::string& title);
    [[nodiscard]] double heightOfTitle() const;

    Ref<UIView> panel_; ///< cuts the rows off at the round corners, which the shadow around is not
    Ref<UIView> blur_;
    Ref<UILabel> title_; ///< empty without one
    Ref<MenuRowsView> rows_;
};
