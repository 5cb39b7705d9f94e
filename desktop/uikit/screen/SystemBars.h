#pragma once

#include "AnimationGroup.h"
#include "screen/HomeIndicatorView.h"
#include "screen/StatusBarView.h"
#include "screen/UIWindow.h"

/// The status bars and the home indicator, in a window in front of all others that takes no touches. Made by
/// the host program, on the screen that there is; gone from it with this object.
class SystemBars {
public:
    SystemBars();
    ~SystemBars();
    SystemBars(const SystemBars&) = delete;
    SystemBars& operator=(const SystemBars&) = delete;

    /// What is seen behind the bars.
    enum class Behind {
        Application, ///< the bars are in the colour of its texts
        Wallpaper    ///< the status bar is white, and there is no indicator
    };

    /// Suits the bars to what is behind them from now on, at first an application.
    void setBehind(Behind behind, const AnimationGroup::Course& course) { bars_->setBehind(behind, course); }

    /// Shows the device's present time, in white where a sheet has left black behind it; for before each
    /// picture.
    void refresh();

    /// The one above an application.
    [[nodiscard]] StatusBarView& statusBar() const { return bars_->statusBar(); }

    /// The one above the wallpaper.
    [[nodiscard]] StatusBarView& whiteStatusBar() const { return bars_->whiteStatusBar(); }

    [[nodiscard]] HomeIndicatorView& homeIndicator() const { return bars_->homeIndicator(); }

private:
    /// Places them on the screen.
    class BarsView final : public UIView {
    public:
        BarsView();

        void setBehind(Behind behind, const AnimationGroup::Course& course);
        void refresh();

        [[nodiscard]] StatusBarView& statusBar() const { return *statusBar_; }

        [[nodiscard]] StatusBarView& whiteStatusBar() const { return *whiteStatusBar_; }

        [[nodiscard]] HomeIndicatorView& homeIndicator() const { return *homeIndicator_; }

        // UIView:
        void layoutSubviews() override;

    private:
        void showApplicationBars(bool shown);

        Ref<StatusBarView> statusBar_;
        Ref<StatusBarView> whiteStatusBar_;
        Ref<HomeIndicatorView> homeIndicator_;
        Behind behind_ = Behind::Application;
    };

    Ref<UIWindow> window_;
    Ref<BarsView> bars_;
    bool isOnBlack_ = false;
};
