#pragma once

#include "HomeIcon.h"

#include <functional>

/// The home screen: wallpaper, the applications in a grid. Made by the shell; owned by
/// its window.
class HomeView final : public UIView {
public:
    /// \param openSettings called when the user taps Settings
    explicit HomeView(std::function<void()> openSettings);

    /// Where the icon of Settings is, in this view.
    [[nodiscard]] CGRect settingsIconFrame() const;

    [[nodiscard]] Ref<UIImage> settingsIcon() const { return settings_->image(); }

    /// Whether the icon of Settings is in its place.
    void setSettingsIconShown(bool shown) { settings_->setIconShown(shown); }

    /// Whether its name is; may be animated.
    void setSettingsNameShown(bool shown) { settings_->setNameShown(shown); }

    /// Shows the wallpaper of the present appearance.
    void updateWallpaper();

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIImageView> wallpaper_;
    Ref<HomeIcon> settings_;
};
