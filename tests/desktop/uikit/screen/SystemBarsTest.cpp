#include "screen/SystemBars.h"

#include "CALayerPeer.h"
#include "TestDevice.h"
#include "UIKit/UIAlertController.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

CGRect screenFrame(const UIView& view) {
    return view.peer().convertToScreen(view.bounds());
}

/// What the time is shown as, on a device of those settings at 03:12 universal time.
std::string timeOn(const TestDevice::Settings& settings) {
    const TestDevice device(settings);
    const Screen screen{Screen::Options{}};
    const SystemBars bars;
    return bars.statusBar().time();
}

AnimationGroup::Course slow() {
    return {.duration = std::chrono::milliseconds(250),
            .delay = {},
            .curve = AnimationCurve::linear(),
            .fromCurrentState = true};
}

} // namespace

TEST(SystemBarsTest, showTheDevicesTimeInItsZoneWithoutTheHalfOfTheDay) {
    EXPECT_EQ(timeOn({.locale = "en_US", .timeZone = "UTC"}), "3:12");
    EXPECT_EQ(timeOn({.locale = "en_US", .timeZone = "America/Los_Angeles"}), "7:12");
    EXPECT_EQ(timeOn({.locale = "de_DE", .timeZone = "America/Los_Angeles"}), "19:12");
    EXPECT_EQ(timeOn({.locale = "zh_TW", .timeZone = "UTC"}), "3:12");
}

TEST(SystemBarsTest, showTheTimeAsOfTheLastRefresh) {
    TestDevice device;
    const Screen screen{Screen::Options{}};
    SystemBars bars;
    device.advance(std::chrono::minutes(9));
    EXPECT_EQ(bars.statusBar().time(), "3:12");
    bars.refresh();
    EXPECT_EQ(bars.statusBar().time(), "3:21");
}

TEST(SystemBarsTest, areAtTheEdgesOfAPhone) {
    const TestDevice device;
    Screen screen{Screen::Options{}};
    const SystemBars bars;
    screen.layoutIfNeeded();
    EXPECT_EQ(screenFrame(bars.statusBar()), CGRectMake(0, 0, 390, 47));
    EXPECT_EQ(screenFrame(bars.homeIndicator()), CGRectMake(125.5, 831, 139, 5));
}

TEST(SystemBarsTest, areAtTheEdgesOfATabletAlsoWhenItIsTurned) {
    const TestDevice device;
    Screen screen({.idiom = Idiom::Pad, .scale = 2});
    const SystemBars bars;
    screen.layoutIfNeeded();
    EXPECT_EQ(screenFrame(bars.statusBar()), CGRectMake(0, 0, 820, 24));
    screen.setSize({1180, 820});
    screen.layoutIfNeeded();
    EXPECT_EQ(screenFrame(bars.statusBar()), CGRectMake(0, 0, 1180, 24));
    EXPECT_EQ(screenFrame(bars.homeIndicator()), CGRectMake(432.5, 808, 315, 5));
}

TEST(SystemBarsTest, stayInFrontOfWindowsThatComeLaterAndLetTouchesThrough) {
    const TestDevice device;
    Screen screen{Screen::Options{}};
    const SystemBars bars;
    const auto window = make<UIWindow>();
    const auto view = makeWith<UIView>(&UIView::initWithFrame, screen.bounds());
    window->addSubview(view);
    screen.addWindow(window);
    EXPECT_EQ(screen.windows().front(), window);
    EXPECT_EQ(screen.hitTest({195, 833}), view.get());
    EXPECT_EQ(screen.hitTest({50, 20}), view.get());
}

TEST(SystemBarsTest, areWhiteWhileASheetLeavesBlackBehindThem) {
    const TestDevice device;
    Screen screen{Screen::Options{}};
    SystemBars bars;
    const auto root = make<UIViewController>();
    const auto window = make<UIWindow>();
    window->setRootViewController(root);
    screen.addWindow(window);
    const auto style = [&bars] {
        bars.refresh();
        return bars.statusBar().peer().traits().style;
    };
    root->presentViewController(
        UIAlertController::alertControllerWithTitle("A", {}, UIAlertControllerStyle::Alert), false, {});
    EXPECT_EQ(style(), UserInterfaceStyle::Light);
    root->dismissViewControllerAnimated(false, {});
    root->presentViewController(make<UIViewController>(), false, {});
    EXPECT_EQ(style(), UserInterfaceStyle::Dark);
    root->dismissViewControllerAnimated(false, {});
    EXPECT_EQ(style(), UserInterfaceStyle::Light);
}

TEST(SystemBarsTest, areGoneFromTheScreenAtTheirEnd) {
    const TestDevice device;
    const Screen screen{Screen::Options{}};
    {
        const SystemBars bars;
        EXPECT_EQ(screen.windows().size(), 1U);
    }
    EXPECT_TRUE(screen.windows().empty());
}

TEST(SystemBarsTest, areWhiteAndWithoutAnIndicatorAboveTheWallpaper) {
    const TestDevice device;
    const Screen screen{Screen::Options{}};
    SystemBars bars;
    const auto white = bars.whiteStatusBar().peer().traits().style;
    EXPECT_EQ(white, UserInterfaceStyle::Dark) << "whose texts are white";
    EXPECT_TRUE(bars.whiteStatusBar().peer().isHidden());
    bars.setBehind(SystemBars::Behind::Wallpaper, {});
    EXPECT_FALSE(bars.whiteStatusBar().peer().isHidden());
    EXPECT_EQ(bars.statusBar().layer().peer().number(LayerProperty::Opacity), 0);
    EXPECT_EQ(bars.homeIndicator().layer().peer().number(LayerProperty::Opacity), 0);
}

TEST(SystemBarsTest, fadeOneIntoTheOtherWithTheWhiteBarBeneath) {
    TestDevice device;
    const Screen screen{Screen::Options{}};
    SystemBars bars;
    bars.setBehind(SystemBars::Behind::Wallpaper, {});
    bars.setBehind(SystemBars::Behind::Application, slow());
    const auto shownAlpha = [&bars] {
        return bars.statusBar().layer().peer().shownValue(LayerProperty::Opacity)[0];
    };
    device.advance(std::chrono::milliseconds(125));
    EXPECT_NEAR(shownAlpha(), 0.5, 1e-6);
    EXPECT_FALSE(bars.whiteStatusBar().peer().isHidden());
    EXPECT_EQ(bars.whiteStatusBar().layer().peer().number(LayerProperty::Opacity), 1);
    device.advance(std::chrono::milliseconds(126));
    EXPECT_EQ(shownAlpha(), 1);
    EXPECT_TRUE(bars.whiteStatusBar().peer().isHidden());
}

TEST(SystemBarsTest, endAsTheyWereLastToldWhenToldInMidFade) {
    TestDevice device;
    const Screen screen{Screen::Options{}};
    SystemBars bars;
    bars.setBehind(SystemBars::Behind::Wallpaper, slow());
    device.advance(std::chrono::milliseconds(100));
    bars.setBehind(SystemBars::Behind::Application, slow());
    device.advance(std::chrono::milliseconds(100));
    bars.setBehind(SystemBars::Behind::Wallpaper, slow());
    device.settle();
    EXPECT_FALSE(bars.whiteStatusBar().peer().isHidden());
    EXPECT_EQ(bars.homeIndicator().layer().peer().number(LayerProperty::Opacity), 0);
}

TEST(SystemBarsTest, bothShowTheTimeInTheSamePlace) {
    TestDevice device;
    Screen screen{Screen::Options{}};
    SystemBars bars;
    device.advance(std::chrono::minutes(9));
    bars.refresh();
    screen.layoutIfNeeded();
    EXPECT_EQ(bars.whiteStatusBar().time(), "3:21");
    EXPECT_EQ(screenFrame(bars.whiteStatusBar()), screenFrame(bars.statusBar()));
}

TEST(SystemBarsTest, waitForNothing) {
    TestDevice device;
    const Screen screen{Screen::Options{}};
    const SystemBars bars;
    device.settle();
}
