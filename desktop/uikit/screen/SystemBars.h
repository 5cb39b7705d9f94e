#pragma once

#include "screen/HomeIndicatorView.h"
#include "screen/StatusBarView.h"
#include "screen/UIWindow.h"

#include <functional>

/// The status bars and the home indicator, in a window in front of all others that takes no touches. Made by
/// the host program, on the screen that there is; gone from it with this object.
class SystemBars {
public:
    SystemBars();
    ~SystemBars();
    SystemBars(const SystemBars&) = delete;
    SystemBars& operator=(const SystemBars&) = delete;

    /// How far down from its upper edge the screen shows the wallpaper, in points, asked at each refresh. At
    /// first the application is seen all over.
    void setWallpaperDepth(std::function<double()> depth) { wallpaperDepth_ = std::move(depth); }

    /// Shows the device's present time, in a colour that suits what is behind it; for before each picture.
    /// While an edge runs across the texts, which would be read on neither side of it, they are away.
    void refresh();

    /// The one above an application.
    [[nodiscard]] StatusBarView& statusBar() const { return bars_->statusBar(); }

    /// The one above the wallpaper, and above the black that a sheet leaves.
    [[nodiscard]] StatusBarView& whiteStatusBar() const { return bars_->whiteStatusBar(); }

    [[nodiscard]] HomeIndicatorView& homeIndicator() const { return bars_->homeIndicator(); }

private:
    /// Places them on the screen.
    class BarsView final : public UIView {
    public:
        BarsView();

        /// How far down the wallpaper reaches, and how far all that is dark behind the bars.
        void refresh(double wallpaperDepth, double darkDepth);

        [[nodiscard]] StatusBarView& statusBar() const { return *statusBar_; }

        [[nodiscard]] StatusBarView& whiteStatusBar() const { return *whiteStatusBar_; }

        [[nodiscard]] HomeIndicatorView& homeIndicator() const { return *homeIndicator_; }

        // UIView:
        void layoutSubviews() override;

    private:
        Ref<StatusBarView> statusBar_;
        Ref<StatusBarView> whiteStatusBar_;
        Ref<HomeIndicatorView> homeIndicator_;
    };

    Ref<UIWindow> window_;
    Ref<BarsView> bars_;
    std::function<double()> wallpaperDepth_ = [] { return 0.0; };
};
