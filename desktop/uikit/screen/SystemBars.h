#pragma once

#include "ShownShape.h"
#include "screen/HomeIndicatorView.h"
#include "screen/StatusBarView.h"
#include "screen/UIWindow.h"

#include <functional>
#include <optional>

/// The status bars and the home indicator, in a window in front of all others that takes no touches. Made by
/// the host program, on the screen that there is; gone from it with this object.
class SystemBars {
public:
    SystemBars();
    ~SystemBars();
    SystemBars(const SystemBars&) = delete;
    SystemBars& operator=(const SystemBars&) = delete;

    using Application = std::function<std::optional<ShownShape>()>;

    /// Where the application is seen in front of the wallpaper, asked at each refresh; nothing while it is
    /// not. At first it is seen all over.
    void setApplication(Application application) { application_ = std::move(application); }

    /// Shows the device's present time, in a colour that suits what is behind it; for before each picture.
    /// Where the application's edge runs across the texts, each side of it has its own colour.
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

        /// \param light where what is behind the status bar is the application's, and not black
        void refresh(const ShownShape& application, const ShownShape& light);

        [[nodiscard]] StatusBarView& statusBar() const { return *statusBar_; }

        [[nodiscard]] StatusBarView& whiteStatusBar() const { return *whiteStatusBar_; }

        [[nodiscard]] HomeIndicatorView& homeIndicator() const { return *homeIndicator_; }

        // UIView:
        void layoutSubviews() override;

    private:
        void cutStatusBar(const ShownShape& light);

        Ref<UIView> strip_; ///< of both status bars
        Ref<UIView> cut_;   ///< has the application's one end at the application's edge
        Ref<StatusBarView> statusBar_;
        Ref<StatusBarView> whiteStatusBar_;
        Ref<HomeIndicatorView> homeIndicator_;
    };

    [[nodiscard]] static std::optional<ShownShape> seenAllOver();

    Ref<UIWindow> window_;
    Ref<BarsView> bars_;
    Application application_ = seenAllOver;
};
