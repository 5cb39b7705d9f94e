#pragma once

#include "HomeIcon.h"

#include <functional>

/// The home screen: wallpaper, the applications in a grid, and the dock below. Made by the shell; owned by
/// its window.
class HomeView final : public UIView {
public:
    /// \param openSettings called when the user taps Settings
    explicit HomeView(std::function<void()> openSettings);

    /// Where the icon of Settings is, in this view.
    [[nodiscard]] CGRect settingsIconFrame() const;

    /// Shows the wallpaper of the present appearance.
    void updateWallpaper();

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIImageView> wallpaper_;
    Ref<UIView> dock_;
    Ref<HomeIcon> settings_;
};
