#include "QuartzCore/CAGradientLayer.h"

#include "CALayerPeer.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

namespace {

/// A gradient from black to white in a view of 40 x 40 points.
class CAGradientLayerTest : public testing::Test {
protected:
    CAGradientLayerTest() {
        gradient->setColors({UIColor::blackColor(), UIColor::whiteColor()});
        gradient->setFrame(CGRectMake(0, 0, 40, 40));
        view->layer().insertSublayer(gradient, 0);
    }

    int grey(int x, int y) { return shown.pixel(x, y).red(); }

    ShownScreen shown;
    const Ref<UIView> view = shown.add(CGRectMake(0, 0, 40, 40), green);
    const Ref<CAGradientLayer> gradient = make<CAGradientLayer>();
};

} // namespace

TEST_F(CAGradientLayerTest, GoesFromTheUpperEdgeToTheLowerOneAtFirst) {
    EXPECT_NEAR(grey(20, 0), 0, 5);
    EXPECT_NEAR(grey(20, 20), 128, 5);
    EXPECT_NEAR(grey(20, 39), 255, 5);
    EXPECT_EQ(grey(0, 20), grey(39, 20));
}

TEST_F(CAGradientLayerTest, FollowsItsLine) {
    gradient->setStartPoint({0, 0});
    gradient->setEndPoint({1, 1});
    EXPECT_NEAR(grey(0, 0), 0, 5);
    EXPECT_NEAR(grey(39, 39), 255, 5);
    EXPECT_NEAR(grey(39, 0), 128, 5);
    EXPECT_NEAR(grey(0, 39), 128, 5);
}

TEST_F(CAGradientLayerTest, GoesOnBeyondItsLine) {
    gradient->setStartPoint({0.25, 0});
    gradient->setEndPoint({0.75, 0});
    EXPECT_NEAR(grey(0, 20), 0, 2);
    EXPECT_NEAR(grey(9, 20), 0, 2);
    EXPECT_NEAR(grey(30, 20), 255, 7);
    EXPECT_NEAR(grey(39, 20), 255, 2);
}

TEST_F(CAGradientLayerTest, DividesTheLineAmongItsColours) {
    gradient->setColors({UIColor::whiteColor(), UIColor::blackColor(), UIColor::whiteColor()});
    EXPECT_NEAR(grey(20, 0), 255, 7);
    EXPECT_NEAR(grey(20, 10), 128, 9);
    EXPECT_NEAR(grey(20, 20), 0, 9);
    EXPECT_NEAR(grey(20, 39), 255, 7);
}

TEST_F(CAGradientLayerTest, OneColourIsPlainAndNoneShowsWhatIsBehind) {
    gradient->setColors({UIColor::whiteColor()});
    EXPECT_EQ(shown.pixel(20, 2), QColor(Qt::white));
    EXPECT_EQ(shown.pixel(20, 38), QColor(Qt::white));
    gradient->setColors({});
    EXPECT_EQ(shown.pixel(20, 2), QColor(Qt::green));
}

TEST_F(CAGradientLayerTest, BlendsColoursThatAreSeenThrough) {
    const auto faint = UIColor::colorWithRed(0, 0, 0, 0.5);
    gradient->setColors({faint, faint});
    EXPECT_NEAR(shown.pixel(20, 20).green(), 128, 2);
}

TEST_F(CAGradientLayerTest, KeepsWithinItsCorners) {
    gradient->setCornerRadius(15);
    EXPECT_EQ(shown.pixel(0, 0), QColor(Qt::green));
    EXPECT_EQ(shown.pixel(39, 39), QColor(Qt::green));
    EXPECT_NE(shown.pixel(20, 0), QColor(Qt::green));
}

TEST_F(CAGradientLayerTest, LiesBehindSubviewsThatComeLater) {
    ShownScreen::put(*view, CGRectMake(10, 10, 20, 20), red);
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::red));
    EXPECT_NEAR(shown.pixel(20, 35).green(), 225, 9);
}

TEST_F(CAGradientLayerTest, IsPaintedAgainOnlyWhenItChanges) {
    shown.compositor.render();
    shown.compositor.render();
    EXPECT_TRUE(shown.compositor.lastDamage().isEmpty());
    gradient->setEndPoint({0.5, 0.5});
    shown.compositor.render();
    EXPECT_EQ(shown.compositor.lastDamage().boundingRect(), QRect(0, 0, 40, 40));
}

TEST_F(CAGradientLayerTest, TakesColoursAsTheyLookAtTheMoment) {
    gradient->setColors({DesktopColor::system(SystemColor::Background)});
    shown.screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::white));
    gradient->setColors({DesktopColor::system(SystemColor::Background)});
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::black));
}
