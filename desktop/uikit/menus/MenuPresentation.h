#pragma once

#include "menus/MenuView.h"
#include "screen/Presented.h"

#include <functional>

/// An open menu above a window: its panel beside what it was opened from, and around that what closes it when
/// it is touched. Owned by the window until the menu has closed.
class MenuPresentation final : public UIView, public Presented {
public:
    using Closing = std::function<void()>;

    /// Opens a menu. \param source what it is opened from, in a window
    /// \param closing called when it begins to close
    static Ref<MenuPresentation> open(const Ref<DesktopMenu>& menu, const UIView& source, Closing closing);

    MenuPresentation(const Ref<DesktopMenu>& menu, const CGRect& source, Closing closing);

    [[nodiscard]] MenuView& menuView() const { return *menu_; }

    /// Where a panel of that size goes: below the source, or above it where there is no room for all of it
    /// and more than below; where that is too little, less high. Away from the edges of `bounds`.
    [[nodiscard]] static CGRect frameFor(CGSize size, const CGRect& source, const CGRect& bounds);

    // Presented:
    [[nodiscard]] std::string_view kind() const override { return "menu"; }

    [[nodiscard]] std::string title() const override;
    [[nodiscard]] std::vector<Action> actions() const override;

    [[nodiscard]] std::optional<Details> details() const override { return std::nullopt; }

    [[nodiscard]] FilePicker* filePicker() const override { return nullptr; }

    [[nodiscard]] bool isTransient() const override { return true; }

    [[nodiscard]] std::optional<ShownShape> steppedBack() const override { return std::nullopt; }

    void keyboardHeightDidChange() override {}

    [[nodiscard]] UIView& shownView() const override { return *menu_; }

    void dismissPresented() override { close(nullptr); }

    // UIView:
    void layoutSubviews() override;

private:
    /// The action, if any, runs when the menu has closed.
    void close(const Ref<DesktopAction>& action);
    void showOpened(bool opened);

    Ref<DesktopMenu> content_;
    CGRect source_; ///< in points of the window
    Closing closing_;
    Ref<UIControl> surroundings_;
    Ref<MenuView> menu_;
    bool isClosing_ = false;
};
