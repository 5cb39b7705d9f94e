#pragma once

#include "AffineTransform.h"
#include "HomeView.h"
#include "PaneLoader.h"
#include "SettingsApplication.h"
#include "screen/SystemBars.h"
#include "screen/UIWindow.h"

#include <expected>
#include <memory>
#include <string>
#include <string_view>

/// What the user sees of the device: the home screen, and Settings once it is opened. Made by the host
/// program or by a test, on a device and a screen; one at a time.
class Shell {
public:
    Shell();
    ~Shell();
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// What is in front: "home" or "Settings".
    [[nodiscard]] std::string_view app() const { return isHome_ ? "home" : "Settings"; }

    /// The application while it runs, in front or not; null while it does not.
    [[nodiscard]] SettingsApplication* settings() const { return settings_.get(); }

    [[nodiscard]] SystemBars& bars() { return bars_; }

    /// Brings Settings to the front, started if it does not run.
    void launchSettings();

    /// Opens the pane of an entry, by its name or label, with Settings in front.
    /// \returns or that there is no such entry
    std::expected<void, std::string> openEntry(std::string_view nameOrLabel);

    /// Back to the home screen; Settings runs on. What is presented above it is dismissed.
    void goHome();

    /// The way back from where the user is: to the page before, or from the first one to the home screen.
    void goBack();

    /// Ends Settings, as when its process is ended: its pages go, and the bundles that it has loaded. Shows
    /// the home screen.
    void terminateSettings();

    /// Starts Settings afresh.
    void relaunch();

private:
    /// The system's request to end an application.
    void end(std::string_view identifier);
    void startSettings();
    void endSettings();
    /// Between the place of its icon and the whole screen.
    void shrinkToIcon();
    void fillScreen();
    void springBack();
    void makeIconWindow();
    /// With the picture of its icon above it.
    void placeSettings(const AffineTransform& transform);
    void showSettings(bool shown);
    void setCorners(double radius);
    /// Where Settings is seen in front of the home screen; nothing while it is not.
    [[nodiscard]] std::optional<ShownShape> shownSettings() const;
    /// The finger that draws Settings up has come so far.
    void followFinger(CGPoint translation);
    void fingerGone(bool goesHome);

    PaneLoader loader_;
    SystemBars bars_;
    Ref<UIWindow> homeWindow_;
    Ref<HomeView> home_;
    Ref<UIWindow> settingsWindow_;
    Ref<UIWindow> iconWindow_; ///< what Settings grows from and shrinks to; as large as its window
    std::unique_ptr<SettingsApplication> settings_;
    bool isHome_ = true;
};
