#include "screen/SystemBars.h"

#include "CALayerPeer.h"
#include "TestDevice.h"
#include "UIKit/UIAlertController.h"
#include "screen/Screen.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <ostream>

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

double alphaOf(const UIView& bar) {
    return bar.peer().isHidden() ? 0 : bar.layer().peer().number(LayerProperty::Opacity);
}

/// What is seen of the bars above an application that has left so much of the screen to the wallpaper.
struct Alphas {
    double dark;
    double white;
    double indicator;

    friend bool operator==(const Alphas&, const Alphas&) = default;
};

std::ostream& operator<<(std::ostream& out, const Alphas& alphas) {
    return out << alphas.dark << ", " << alphas.white << ", " << alphas.indicator;
}

Alphas alphasAt(double wallpaperDepth, const Screen::Options& options = {}) {
    const TestDevice device;
    const Screen screen{options};
    SystemBars bars;
    bars.setWallpaperDepth([wallpaperDepth] { return wallpaperDepth; });
    bars.refresh();
    return {.dark = alphaOf(bars.statusBar()),
            .white = alphaOf(bars.whiteStatusBar()),
            .indicator = alphaOf(bars.homeIndicator())};
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

TEST(SystemBarsTest, writeATabletsChargeAsTheLocaleDoes) {
    const TestDevice device({.locale = "de_DE"});
    const Screen screen({.idiom = Idiom::Pad});
    const SystemBars bars;
    const auto& parts = bars.statusBar().peer().subviews();
    EXPECT_TRUE(std::ranges::any_of(parts, [](const auto& part) {
        auto* const label = dynamic_cast<UILabel*>(part.get());
        return label != nullptr && peerOf<UILabelPeer>(*label).text() == "100\u00a0%";
    }));
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
    const auto isWhite = [&bars] {
        bars.refresh();
        EXPECT_EQ(alphaOf(bars.homeIndicator()), 1);
        EXPECT_EQ(alphaOf(bars.statusBar()) + alphaOf(bars.whiteStatusBar()), 1);
        return alphaOf(bars.whiteStatusBar()) == 1;
    };
    root->presentViewController(
        UIAlertController::alertControllerWithTitle("A", {}, UIAlertControllerStyle::Alert), false, {});
    EXPECT_FALSE(isWhite());
    root->dismissViewControllerAnimated(false, {});
    root->presentViewController(make<UIViewController>(), false, {});
    EXPECT_TRUE(isWhite());
    root->dismissViewControllerAnimated(false, {});
    EXPECT_FALSE(isWhite());
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
    EXPECT_EQ(alphasAt(0), (Alphas{.dark = 1, .white = 0, .indicator = 1}));
    EXPECT_EQ(alphasAt(844), (Alphas{.dark = 0, .white = 1, .indicator = 0}));
    const TestDevice device;
    const Screen screen{Screen::Options{}};
    const SystemBars bars;
    const auto white = bars.whiteStatusBar().peer().traits().style;
    EXPECT_EQ(white, UserInterfaceStyle::Dark) << "whose texts are white";
    EXPECT_TRUE(bars.whiteStatusBar().peer().isHidden());
}

TEST(SystemBarsTest, haveNoTextsThatAnEdgeRunsAcross) {
    EXPECT_EQ(alphasAt(12).dark, 1) << "the edge is above them";
    EXPECT_NEAR(alphasAt(15).dark, 0.5, 1e-9);
    for (const auto edge : {18.0, 26.0, 34.0}) {
        EXPECT_EQ(alphasAt(edge).dark, 0) << edge;
        EXPECT_EQ(alphasAt(edge).white, 0) << edge;
    }
    EXPECT_NEAR(alphasAt(37).white, 0.5, 1e-9);
    EXPECT_EQ(alphasAt(40).white, 1) << "the edge is below them";
}

TEST(SystemBarsTest, ofATabletAreLowerAndGiveWaySooner) {
    const Screen::Options pad{.idiom = Idiom::Pad, .scale = 2};
    EXPECT_EQ(alphasAt(0, pad).dark, 1);
    EXPECT_EQ(alphasAt(6, pad).dark, 0);
    EXPECT_EQ(alphasAt(18, pad).white, 0);
    EXPECT_EQ(alphasAt(24, pad).white, 1);
}

TEST(SystemBarsTest, areWhiteAllTheWayInDarkAppearance) {
    for (const auto edge : {0.0, 26.0, 844.0})
        EXPECT_EQ(alphasAt(edge, {.style = UserInterfaceStyle::Dark}).dark, 1) << edge;
}

TEST(SystemBarsTest, theIndicatorLeavesBeforeItStandsOnTheWallpaper) {
    EXPECT_NEAR(alphasAt(3).indicator, 0.5, 1e-9);
    EXPECT_EQ(alphasAt(6).indicator, 0);
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
