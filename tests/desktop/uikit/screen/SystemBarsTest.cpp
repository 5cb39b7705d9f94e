#include "screen/SystemBars.h"

#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "TestDevice.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UIColor.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/StatusGlyphs.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <QImage>
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

/// Which of the bars are seen, and how much of the indicator is.
struct Seen {
    bool dark;
    bool white;
    double indicator;

    friend bool operator==(const Seen&, const Seen&) = default;
};

std::ostream& operator<<(std::ostream& out, const Seen& seen) {
    return out << seen.dark << ", " << seen.white << ", " << seen.indicator;
}

Seen seenAbove(const std::optional<ShownShape>& application, const Screen::Options& options = {}) {
    const TestDevice device;
    const Screen screen{options};
    SystemBars bars;
    bars.setApplication([application] { return application; });
    bars.refresh();
    return {.dark = !bars.statusBar().peer().isHidden(),
            .white = !bars.whiteStatusBar().peer().isHidden(),
            .indicator = alphaOf(bars.homeIndicator())};
}

/// Of an application that the wallpaper is seen so far down above.
ShownShape below(double depth, double width = Screen::phoneSize.width) {
    return {.frame = CGRectMake(0, depth, width, 1000)};
}

/// The darkest and the brightest grey among pixels.
struct Greys {
    int darkest = 255;
    int brightest = 0;
};

Greys greysIn(const QImage& picture, const QRect& rect) {
    Greys greys;
    for (auto y = rect.top(); y <= rect.bottom(); ++y) {
        for (auto x = rect.left(); x <= rect.right(); ++x) {
            const auto grey = qGray(picture.pixel(x, y));
            greys = {.darkest = std::min(greys.darkest, grey), .brightest = std::max(greys.brightest, grey)};
        }
    }
    return greys;
}

/// A screen at one pixel a point that shows a white application in front of black, with the bars.
class EdgePicture {
public:
    explicit EdgePicture(const ShownShape& application) {
        const auto window = make<UIWindow>();
        window->setFrame(screen_.bounds());
        window->setBackgroundColor(UIColor::blackColor());
        const auto view = makeWith<UIView>(&UIView::initWithFrame, application.frame);
        view->setBackgroundColor(UIColor::whiteColor());
        view->layer().setCornerRadius(application.cornerRadius);
        view->layer().peer().continuousCorners = true;
        window->addSubview(view);
        screen_.addWindow(window);
        bars_.setApplication([application] { return application; });
        bars_.refresh();
    }

    [[nodiscard]] Greys greys(const QRect& rect) { return greysIn(compositor_.render(), rect); }

    [[nodiscard]] int grey(int x, int y) { return qGray(compositor_.render().pixel(x, y)); }

private:
    TestDevice device_;
    Screen screen_{{.scale = 1}};
    SystemBars bars_;
    Compositor compositor_{screen_};
};

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

TEST(SystemBarsTest, haveTheSameGapBesideATabletsDateAndCharge) {
    const TestDevice device;
    Screen screen({.idiom = Idiom::Pad, .scale = 2});
    const SystemBars bars;
    screen.layoutIfNeeded();
    const auto& parts = bars.statusBar().peer().subviews();
    ASSERT_EQ(parts.size(), 4U);
    const auto time = screenFrame(*parts[0]);
    const auto date = screenFrame(*parts[1]);
    const auto charge = screenFrame(*parts[2]);
    const auto glyphs = screenFrame(*parts[3]);
    EXPECT_EQ(time.origin.x, 20);
    EXPECT_NEAR(date.origin.x - CGRectGetMaxX(time), 6, 1e-9);
    EXPECT_NEAR(charge.origin.x - glyphs.origin.x - StatusGlyphs::wirelessWidth, 6, 1e-9);
    EXPECT_NEAR(CGRectGetMaxX(glyphs), 820 - 20, 1e-9);
}

TEST(SystemBarsTest, outlineTheBatteryFaintly) {
    const TestDevice device;
    Screen screen{Screen::Options{}};
    const auto window = make<UIWindow>();
    window->setFrame(screen.bounds());
    window->setBackgroundColor(UIColor::whiteColor());
    screen.addWindow(window);
    SystemBars bars;
    bars.refresh();
    Compositor compositor(screen);
    const auto picture = compositor.render();
    const auto middle = 3 * 26;
    const auto left = static_cast<int>(3 * (390 - 27 - StatusGlyphs::batteryWidth));
    auto faintest = 255;
    for (auto x = left; x < left + 4; ++x) // before the charge begins
        faintest = std::min(faintest, qGray(picture.pixel(x, middle)));
    EXPECT_NEAR(faintest, 255 * (1 - 0.35), 2);
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
        EXPECT_NE(bars.statusBar().peer().isHidden(), bars.whiteStatusBar().peer().isHidden());
        return bars.statusBar().peer().isHidden();
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
    EXPECT_EQ(seenAbove(below(0)), (Seen{.dark = true, .white = false, .indicator = 1}));
    EXPECT_EQ(seenAbove(std::nullopt), (Seen{.dark = false, .white = true, .indicator = 0}));
    const TestDevice device;
    const Screen screen{Screen::Options{}};
    const SystemBars bars;
    const auto white = bars.whiteStatusBar().peer().traits().style;
    EXPECT_EQ(white, UserInterfaceStyle::Dark) << "whose texts are white";
    EXPECT_TRUE(bars.whiteStatusBar().peer().isHidden());
}

TEST(SystemBarsTest, areBothSeenWhileAnEdgeRunsAcrossTheirTexts) {
    const auto both = [](const ShownShape& application) {
        const auto seen = seenAbove(application);
        EXPECT_TRUE(seen.dark || seen.white);
        return seen.dark && seen.white;
    };
    EXPECT_FALSE(both(below(18))) << "the edge is above them";
    EXPECT_TRUE(both(below(18.5)));
    EXPECT_TRUE(both(below(33.5)));
    EXPECT_FALSE(both(below(34))) << "the edge is below them";
    EXPECT_TRUE(both({.frame = CGRectMake(28, 0, 390, 844)})) << "or beside them";
    EXPECT_TRUE(both({.frame = CGRectMake(0, 0, 362, 844)}));
    EXPECT_TRUE(both({.frame = CGRectMake(0, 17, 390, 844), .cornerRadius = 47}));
    EXPECT_FALSE(both({.frame = CGRectMake(0, 0, 390, 844), .cornerRadius = 47}))
        << "they are within the glass";
}

TEST(SystemBarsTest, ofATabletAreHigherUpAndWider) {
    const Screen::Options pad{.idiom = Idiom::Pad, .scale = 2};
    const auto width = Screen::padSize.width;
    EXPECT_EQ(seenAbove(below(6, width), pad).white, false);
    EXPECT_EQ(seenAbove(below(6.5, width), pad).white, true);
    EXPECT_EQ(seenAbove(below(17.5, width), pad).dark, true);
    EXPECT_EQ(seenAbove(below(18, width), pad).dark, false);
    EXPECT_EQ(seenAbove(below(0, 800), pad).white, false);
    EXPECT_EQ(seenAbove(below(0, 799), pad).white, true);
}

TEST(SystemBarsTest, areReadOnBothSidesOfAnEdge) {
    EdgePicture picture(below(26));
    const auto upper = picture.greys({40, 18, 35, 8});
    const auto lower = picture.greys({40, 26, 35, 8});
    EXPECT_EQ(upper.darkest, 0);
    EXPECT_GT(upper.brightest, 200);
    EXPECT_EQ(lower.brightest, 255);
    EXPECT_LT(lower.darkest, 55);
    for (auto x = 343; x < 355; ++x) { // which the battery fills
        EXPECT_EQ(picture.grey(x, 25), 255) << x;
        EXPECT_EQ(picture.grey(x, 26), 0) << x;
    }
}

TEST(SystemBarsTest, areCutAlongTheBendOfACornerAndNowhereElse) {
    EdgePicture picture({.frame = CGRectMake(0, 17, 364, 834), .cornerRadius = 30});
    // From the outer side of the corner that bends across the battery to the inner one.
    EXPECT_EQ(picture.grey(355, 23), 255);
    EXPECT_EQ(picture.grey(345, 28), 0);
    const auto time = picture.greys({40, 18, 35, 16});
    EXPECT_LT(time.darkest, 55) << "which is far from the corner";
}

TEST(SystemBarsTest, areWhiteAllTheWayInDarkAppearance) {
    const Seen one{.dark = true, .white = false, .indicator = 1};
    const Screen::Options dark{.style = UserInterfaceStyle::Dark};
    EXPECT_EQ(seenAbove(below(0), dark), one);
    EXPECT_TRUE(seenAbove(below(26), dark).dark);
    EXPECT_FALSE(seenAbove(below(26), dark).white);
    EXPECT_TRUE(seenAbove(std::nullopt, dark).dark);
}

TEST(SystemBarsTest, areWholeAgainOnceTheEdgeHasGone) {
    const TestDevice device;
    Screen screen{{.scale = 1}};
    auto application = below(26);
    SystemBars bars;
    bars.setApplication([&application] { return application; });
    bars.refresh();
    application = below(0);
    bars.refresh();
    Compositor compositor(screen);
    const auto window = make<UIWindow>();
    window->setFrame(screen.bounds());
    window->setBackgroundColor(UIColor::whiteColor());
    screen.addWindow(window);
    const auto& picture = compositor.render();
    EXPECT_EQ(screenFrame(bars.statusBar()), CGRectMake(0, 0, 390, 47));
    EXPECT_LT(greysIn(picture, {40, 18, 35, 7}).darkest, 55);
    EXPECT_LT(greysIn(picture, {40, 26, 35, 7}).darkest, 55);
}

TEST(SystemBarsTest, theIndicatorLeavesBeforeItStandsOnTheWallpaper) {
    EXPECT_NEAR(seenAbove(below(3)).indicator, 0.5, 1e-9);
    EXPECT_EQ(seenAbove(below(6)).indicator, 0);
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
