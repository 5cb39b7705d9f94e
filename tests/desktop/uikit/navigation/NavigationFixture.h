#pragma once

#include "TestDevice.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/DesktopNavigationItem.h"
#include "menus/DesktopMenu.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

/// What pages were told, in order: "viewWillAppear B".
using PageLog = std::vector<std::string>;

/// A page that writes down what it is told.
class LoggedPage final : public UIViewController {
public:
    /// \param log outlives the page
    LoggedPage(PageLog& log, std::string name);

    // UIViewController:
    void viewDidLoad() override;

private:
    PageLog& log_;
    std::string name_;
};

/// A navigation controller in a window of a screen, with fingers and time.
class NavigationFixture : public testing::Test {
protected:
    explicit NavigationFixture(Screen::Options options = {});

    /// A page of that title.
    Ref<LoggedPage> page(const std::string& name) { return make<LoggedPage>(log, name); }

    /// Shows the navigation controller with those pages, and forgets what was logged.
    void show(const UINavigationControllerPeer::Stack& pages);

    UINavigationControllerPeer& peer() { return peerOf<UINavigationControllerPeer>(*navigation); }

    NavigationBarContentView& content() { return *peer().bar().content(); }

    std::vector<std::string> titles();

    void advance(std::chrono::milliseconds time) {
        Device::current().mainQueue().advance(device.clock(), time);
    }

    void settle();

    void tap(CGPoint place);
    void tap(const UIView& view);
    /// A finger that comes down and moves in steps, 16 ms each; it stays down.
    void drag(CGPoint from, CGPoint to, int steps = 10);

    void lift(CGPoint place) { touches.touch(TouchPhase::Ended, place); }

    static CGRect screenFrame(const UIView& view) { return view.peer().convertToScreen(view.bounds()); }

    PageLog log;
    TestDevice device;
    Screen screen;
    Ref<UINavigationController> navigation = make<UINavigationController>();
    Ref<UIWindow> window = make<UIWindow>();
    TouchDispatcher touches;
};
