// The finger that draws Settings up from the screen's lower edge.

#include "RectGeometry.h"
#include "ShellFixture.h"
#include "UIKit/UIButton.h"
#include "views/UIViewPeer.h"

#include <cmath>

namespace {

using namespace std::chrono_literals;

class ShellHomeSwipeTest : public ShellFixture {
protected:
    /// A finger that comes down and moves, 16 ms a step; it stays down.
    void drag(CGPoint from, CGPoint to, int steps = 20) {
        finger.touch(TouchPhase::Began, from);
        for (int step = 1; step <= steps; ++step) {
            advance(16ms);
            const auto part = static_cast<double>(step) / steps;
            finger.touch(TouchPhase::Moved, {std::lerp(from.x, to.x, part), std::lerp(from.y, to.y, part)});
        }
    }

    void lift(CGPoint place) { finger.touch(TouchPhase::Ended, place); }
};

} // namespace

TEST_F(ShellHomeSwipeTest, AFingerThatDrawsSettingsUpGoesHome) {
    for (const auto idiom : {Idiom::Phone, Idiom::Pad}) {
        start(idiom);
        shell->launchSettings();
        settle();
        const auto size = screen->bounds().size;
        drag({size.width / 2, size.height - 5}, {size.width / 2, size.height / 2});
        EXPECT_EQ(shell->app(), "Settings");
        advance(200ms); // held still: it is the place that decides
        lift({size.width / 2, size.height / 2});
        EXPECT_EQ(shell->app(), "home");
        settle();
        EXPECT_NE(shell->settings(), nullptr);
    }
}

TEST_F(ShellHomeSwipeTest, SettingsShrinksBesideTheFingerAndItsLowerEdgeStaysThere) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {215, 640});
    const auto frame = frameOfSettings();
    // The first 10 of the 200 points are the ones by which a movement is told.
    EXPECT_NEAR(CGRectGetMaxY(frame), 844 - 190, 1);
    EXPECT_NEAR(frame.size.height / 844, 1 - 1.25 * 190 / 844, 0.005);
    EXPECT_NEAR(CGRectGetMidX(frame), 195 + 19, 0.5);
    drag({195, 839}, {195, 10});
    EXPECT_NEAR(frameOfSettings().size.height / 844, 0.3, 0.001) << "small, but still there";
}

TEST_F(ShellHomeSwipeTest, TheStatusBarIsWhiteOnceTheFingerHasDrawnSettingsFromBeneathIt) {
    const auto isWhite = [this] {
        shell->bars().refresh();
        return !shell->bars().whiteStatusBar().peer().isHidden();
    };
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 814});
    EXPECT_FALSE(isWhite());
    finger.touch(TouchPhase::Moved, {195, 640});
    EXPECT_TRUE(isWhite());
    finger.touch(TouchPhase::Cancelled, {});
    settle();
    EXPECT_FALSE(isWhite());
}

TEST_F(ShellHomeSwipeTest, TheIconsNameIsNotSeenBesideSettings) {
    const auto& name = nameOfIcon();
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 500});
    EXPECT_EQ(name.layer().peer().shownValue(LayerProperty::Opacity)[0], 0);
    finger.touch(TouchPhase::Cancelled, {});
    settle();
    EXPECT_EQ(name.layer().peer().shownValue(LayerProperty::Opacity)[0], 0);
}

TEST_F(ShellHomeSwipeTest, AHesitantDragSpringsBack) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 740});
    advance(200ms);
    lift({195, 740});
    EXPECT_EQ(shell->app(), "Settings");
    settle();
    EXPECT_EQ(frameOfSettings(), screen->bounds());
}

TEST_F(ShellHomeSwipeTest, AFlickGoesHomeFromLessAndAFingerThatTurnsBackDoesNot) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 740}, 6);
    lift({195, 740});
    EXPECT_EQ(shell->app(), "home");
    settle();
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 400});
    for (const auto y : {400.0, 440.0, 480.0, 520.0, 560.0}) {
        advance(16ms);
        finger.touch(TouchPhase::Moved, {195, y});
    }
    lift({195, 600});
    EXPECT_EQ(shell->app(), "Settings");
}

TEST_F(ShellHomeSwipeTest, ADragFromElsewhereOrSidewaysDoesNotGoHome) {
    shell->launchSettings();
    settle();
    drag({195, 800}, {195, 300});
    lift({195, 300});
    settle();
    drag({195, 839}, {380, 820});
    EXPECT_EQ(frameOfSettings(), screen->bounds());
    lift({380, 820});
    EXPECT_EQ(shell->app(), "Settings");
}

TEST_F(ShellHomeSwipeTest, TheFingerOnTheWayHomeIsNotThatOfWhatLiesBeneath) {
    shell->launchSettings();
    settle();
    const auto button = make<UIButton>();
    auto& page = shell->settings()->pages()->view();
    button->setFrame(CGRectMake(0, 800, 390, 44));
    page.addSubview(button);
    drag({195, 839}, {195, 836}, 2);
    EXPECT_TRUE(button->isTracking());
    for (const auto y : {816.0, 796.0, 776.0, 756.0, 736.0, 716.0}) {
        advance(16ms);
        finger.touch(TouchPhase::Moved, {195, y});
    }
    EXPECT_FALSE(button->isTracking());
    lift({195, 700});
    settle();
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellHomeSwipeTest, GoingHomeWhileAFingerDrawsSettingsTakesTheFingerAway) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 500});
    shell->goHome();
    settle();
    const auto small = frameOfSettings();
    EXPECT_NEAR(small.size.width, 60, 1e-6);
    finger.touch(TouchPhase::Moved, {195, 300});
    lift({195, 300});
    settle();
    EXPECT_EQ(frameOfSettings(), small);
    EXPECT_EQ(shell->app(), "home");
}

TEST_F(ShellHomeSwipeTest, SettingsMayBeEndedUnderTheFinger) {
    shell->launchSettings();
    settle();
    drag({195, 839}, {195, 500});
    shell->terminateSettings();
    finger.touch(TouchPhase::Moved, {195, 300});
    lift({195, 300});
    settle();
    EXPECT_EQ(shell->app(), "home");
    EXPECT_EQ(shell->settings(), nullptr);
}
