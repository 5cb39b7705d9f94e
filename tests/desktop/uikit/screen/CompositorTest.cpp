#include "screen/Compositor.h"

#include "DesktopBezierPath.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace {

using namespace std::chrono_literals;

const QColor white = Qt::white;

/// Counts how often it is painted, by way of a picture that it keeps.
class CountedView final : public UIView {
public:
    CountedView() : UIView(std::make_unique<Peer>()) { layer().peer().keepsPicture = true; }

    [[nodiscard]] int paintings() const { return dynamic_cast<const Peer&>(peer()).paintings; }

private:
    struct Peer final : public UIViewPeer {
        // UIViewPeer:
        void drawLayer(QPainter& /*painter*/, const CGRect& /*bounds*/, const Traits& /*traits*/) override {
            ++paintings;
        }

        int paintings = 0;
    };
};

class CompositorTest : public testing::Test {
protected:
    void expectNear(const QColor& color, int red, int green, int blue) {
        constexpr auto tolerance = 2;
        EXPECT_NEAR(color.red(), red, tolerance);
        EXPECT_NEAR(color.green(), green, tolerance);
        EXPECT_NEAR(color.blue(), blue, tolerance);
    }

    ShownScreen shown_;
};

TEST(Compositor, PaintsAtTheScreensScale) {
    ShownScreen shown({40, 30}, 3);
    shown.put(CGRectMake(10, 5, 10, 10), red);
    const auto& picture = shown.compositor.render();
    EXPECT_EQ(picture.size(), QSize(120, 90));
    EXPECT_EQ(picture.pixelColor(30, 15), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(59, 44), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(29, 15), white);
    EXPECT_EQ(picture.pixelColor(60, 44), white);
}

TEST_F(CompositorTest, IsBlackWhereThereIsNothing) {
    shown_.window->setBackgroundColor(nullptr);
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::black));
}

TEST_F(CompositorTest, LaysOutFirst) {
    const auto controller = make<UIViewController>();
    controller->view().setBackgroundColor(DesktopColor::fixed(red));
    shown_.window->setRootViewController(controller);
    shown_.screen.setSize({60, 60});
    EXPECT_EQ(shown_.pixel(59, 59), QColor(Qt::red));
}

TEST_F(CompositorTest, PaintsSubviewsInTheirOrder) {
    const auto back = shown_.add(CGRectMake(0, 0, 20, 20), red);
    shown_.put(CGRectMake(0, 0, 20, 20), green);
    EXPECT_EQ(shown_.pixel(5, 5), QColor(Qt::green));
    shown_.window->peer().bringSubviewToFront(*back);
    EXPECT_EQ(shown_.pixel(5, 5), QColor(Qt::red));
}

TEST_F(CompositorTest, ShowsSubviewsBeyondTheirSuperviewUnlessItClips) {
    const auto outer = shown_.add(CGRectMake(10, 10, 10, 10), red);
    ShownScreen::put(*outer, CGRectMake(5, 5, 20, 5), green);
    EXPECT_EQ(shown_.pixel(25, 17), QColor(Qt::green));
    outer->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(25, 17), white);
    EXPECT_EQ(shown_.pixel(19, 17), QColor(Qt::green));
}

TEST_F(CompositorTest, RoundsTheBackgroundsCornersButNotTheSubviews) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    view->layer().setCornerRadius(10);
    EXPECT_EQ(shown_.pixel(0, 0), white);
    EXPECT_EQ(shown_.pixel(10, 1), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(10, 10), QColor(Qt::red));
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 5, 5), green);
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::green));
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(0, 0), white);
    EXPECT_EQ(shown_.pixel(4, 4), QColor(Qt::green));
}

TEST_F(CompositorTest, HasSmoothEdgesWhereItCutsOff) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    view->layer().setCornerRadius(10);
    view->setClipsToBounds(true);
    ShownScreen::put(*view, CGRectMake(0, 0, 20, 20), blue);
    auto mixed = 0;
    const auto& picture = shown_.compositor.render();
    for (auto x = 0; x < 10; ++x) {
        const auto color = picture.pixelColor(x, 2);
        mixed += color.red() > 20 && color.red() < 235 ? 1 : 0;
        EXPECT_NEAR(color.red(), color.green(), 1); // white and blue only: nothing of the red shines through
        EXPECT_EQ(color.alpha(), 255);
    }
    EXPECT_GT(mixed, 0);
}

TEST_F(CompositorTest, RoundsOnlyTheCornersItIsToldTo) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    view->layer().setCornerRadius(8);
    view->layer().peer().roundBottom = false;
    EXPECT_EQ(shown_.pixel(0, 0), white);
    EXPECT_EQ(shown_.pixel(19, 0), white);
    EXPECT_EQ(shown_.pixel(0, 19), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(19, 19), QColor(Qt::red));
    view->layer().peer().roundBottom = true;
    view->layer().peer().roundTop = false;
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(0, 19), white);
}

TEST_F(CompositorTest, BeginsGradualCornersEarlier) {
    const auto view = shown_.add(CGRectMake(0, 0, 40, 40), red);
    view->layer().setCornerRadius(10);
    EXPECT_EQ(shown_.pixel(10, 0), QColor(Qt::red));
    const auto circular = shown_.pixel(7, 0);
    view->layer().peer().continuousCorners = true;
    EXPECT_NE(shown_.pixel(10, 0), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(16, 0), QColor(Qt::red));
    EXPECT_NE(shown_.pixel(7, 0), circular);
}

TEST_F(CompositorTest, DrawsTheBorderInsideTheEdgeOverTheContents) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    ShownScreen::put(*view, CGRectMake(0, 0, 20, 20), green);
    view->layer().setBorderWidth(2);
    view->layer().setBorderColor(DesktopColor::fixed(blue));
    EXPECT_EQ(shown_.pixel(9, 20), white);
    EXPECT_EQ(shown_.pixel(10, 20), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(11, 20), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(12, 20), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(29, 29), QColor(Qt::blue));
}

TEST_F(CompositorTest, FillsAViewThatIsAllBorder) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    view->layer().setBorderWidth(10);
    view->layer().setBorderColor(DesktopColor::fixed(blue));
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::blue));
}

TEST_F(CompositorTest, FadesAViewWithAllWithinItAsOne) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    ShownScreen::put(*view, CGRectMake(0, 0, 10, 10), green);
    view->setAlpha(0.5);
    expectNear(shown_.pixel(5, 5), 128, 255, 128); // green over white: nothing of the red shines through
    expectNear(shown_.pixel(15, 15), 255, 128, 128);
}

TEST_F(CompositorTest, FadesWhatIsWithinAFadedView) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 10, 10), green);
    view->setAlpha(0.5);
    inner->setAlpha(0.5);
    expectNear(shown_.pixel(5, 5), 191, 191, 128);
}

TEST_F(CompositorTest, LeavesHiddenAndClearViewsOut) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    ShownScreen::put(*view, CGRectMake(0, 0, 10, 10), green);
    view->peer().setHidden(true);
    EXPECT_EQ(shown_.pixel(5, 5), white);
    view->peer().setHidden(false);
    EXPECT_EQ(shown_.pixel(5, 5), QColor(Qt::green));
    view->setAlpha(0);
    EXPECT_EQ(shown_.pixel(5, 5), white);
}

TEST_F(CompositorTest, CastsAShadowAroundTheLayer) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    view->layer().setShadowOpacity(0.5);
    view->layer().setShadowRadius(2);
    view->layer().setShadowOffset({0, 4});
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::red));
    EXPECT_LT(shown_.pixel(20, 31).red(), 200);
    EXPECT_EQ(shown_.pixel(20, 5), white);
    EXPECT_EQ(shown_.pixel(20, 31).red(), shown_.pixel(20, 31).blue());
    view->layer().setShadowColor(DesktopColor::fixed(green));
    EXPECT_GT(shown_.pixel(20, 31).green(), 250);
}

TEST_F(CompositorTest, CastsNoShadowWhereTheLayerIsCutOff) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 15), {.alpha = 0});
    ShownScreen::put(*view, CGRectMake(5, 5, 5, 5), red);
    view->layer().setShadowOpacity(1);
    view->layer().setShadowRadius(2);
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(16, 12), white);
    EXPECT_EQ(shown_.pixel(20, 8), white);
    EXPECT_EQ(shown_.pixel(16, 16), QColor(Qt::red));
}

TEST_F(CompositorTest, CastsTheShadowOfItsPath) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    view->layer().setShadowOpacity(1);
    view->layer().setShadowRadius(0);
    view->layer().setShadowOffset({0, 0});
    view->layer().setShadowPath(UIBezierPath::bezierPathWithRoundedRect(CGRectMake(0, 22, 20, 5), 0));
    EXPECT_EQ(shown_.pixel(20, 34), QColor(Qt::black));
    EXPECT_EQ(shown_.pixel(20, 31), white);
    EXPECT_EQ(shown_.pixel(20, 38), white);
}

TEST_F(CompositorTest, BlursWhatIsBehindABackdropWithinItsOutline) {
    shown_.put(CGRectMake(0, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(5, 10, 30, 20));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    panel->layer().setCornerRadius(10);
    shown_.window->addSubview(panel);
    const auto blurred = shown_.pixel(20, 20).red();
    EXPECT_GT(blurred, 100);
    EXPECT_LT(blurred, 160);
    EXPECT_EQ(shown_.pixel(19, 5), QColor(Qt::black));
    EXPECT_EQ(shown_.pixel(20, 5), white);
    EXPECT_EQ(shown_.pixel(5, 10), QColor(Qt::black));
    EXPECT_EQ(shown_.pixel(34, 10), white);
}

TEST_F(CompositorTest, ShowsWhatIsBehindAFadedPanelBlurredInPart) {
    shown_.put(CGRectMake(0, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    shown_.window->addSubview(panel);
    const auto blurred = shown_.pixel(18, 20).red();
    EXPECT_GT(blurred, 20);
    panel->setAlpha(0.5);
    EXPECT_NEAR(shown_.pixel(18, 20).red(), blurred / 2.0, 3);
}

TEST_F(CompositorTest, PaintsScaledAndTurnedViews) {
    const auto view = shown_.add(CGRectMake(15, 15, 10, 10), red);
    view->peer().setTransform(AffineTransform::scale(2));
    EXPECT_EQ(shown_.pixel(10, 10), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(29, 29), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(9, 20), white);
    view->peer().setTransform({.a = 0.7071, .b = 0.7071, .c = -0.7071, .d = 0.7071});
    EXPECT_EQ(shown_.pixel(15, 15), white);
    EXPECT_EQ(shown_.pixel(20, 14), QColor(Qt::red));
}

TEST_F(CompositorTest, CutsOffAlongTurnedEdges) {
    const auto view = shown_.add(CGRectMake(15, 15, 10, 10), red);
    view->setClipsToBounds(true);
    ShownScreen::put(*view, CGRectMake(-10, -10, 40, 40), green);
    view->peer().setTransform({.a = 0.7071, .b = 0.7071, .c = -0.7071, .d = 0.7071});
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(15, 15), white);
    EXPECT_EQ(shown_.pixel(2, 2), white);
}

TEST_F(CompositorTest, ScrollsByTheBoundsOrigin) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    ShownScreen::put(*view, CGRectMake(0, 30, 20, 5), green);
    view->peer().setBounds(CGRectMake(0, 30, 20, 20));
    EXPECT_EQ(shown_.pixel(15, 12), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(15, 16), QColor(Qt::red));
}

TEST_F(CompositorTest, ShowsAnimationsOnTheirWay) {
    const auto view = shown_.add(CGRectMake(0, 0, 10, 10), red);
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None,
                                [&] { view->setFrame(CGRectMake(20, 0, 10, 10)); }, {});
    EXPECT_EQ(shown_.pixel(5, 5), QColor(Qt::red));
    EXPECT_TRUE(shown_.compositor.isAnimating());
    shown_.device.advance(500ms);
    EXPECT_EQ(shown_.pixel(5, 5), white);
    EXPECT_EQ(shown_.pixel(15, 5), QColor(Qt::red));
    shown_.device.advance(500ms);
    EXPECT_EQ(shown_.pixel(25, 5), QColor(Qt::red));
    EXPECT_FALSE(shown_.compositor.isAnimating());
}

TEST_F(CompositorTest, APictureOfALayerIsClearWhereTheLayerIs) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), ColorComponents{.alpha = 0});
    ShownScreen::put(*view, CGRectMake(5, 5, 5, 5), red);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(17, 17), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(12, 12), white);
    EXPECT_EQ(shown_.pixel(25, 25), white);
}

TEST_F(CompositorTest, APictureOfALayerShowsWhatIsWithinItBeyondItsBounds) {
    const auto view = shown_.add(CGRectMake(10, 10, 10, 10), red);
    ShownScreen::put(*view, CGRectMake(-5, 5, 20, 2), green);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(6, 15), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(24, 15), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(4, 15), white);
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(6, 15), white);
    EXPECT_EQ(shown_.pixel(11, 15), QColor(Qt::green));
}

TEST_F(CompositorTest, APictureOfALayerIsAtWholePixels) {
    const auto view = shown_.add(CGRectMake(10.4, 10, 10, 10), red);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(10, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 15), white);
    view->setFrame(CGRectMake(10.6, 10, 10, 10));
    EXPECT_EQ(shown_.pixel(10, 15), white);
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::red));
    view->setClipsToBounds(true);
    EXPECT_EQ(shown_.pixel(10, 15), white);
    EXPECT_EQ(shown_.pixel(11, 15), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 15), QColor(Qt::red));
}

TEST_F(CompositorTest, APictureOfALayerFollowsWhatIsWithinIt) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 5, 5), green);
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::green));
    inner->setFrame(CGRectMake(10, 10, 5, 5));
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(12, 12), QColor(Qt::green));
    EXPECT_FALSE(shown_.compositor.lastDamage().contains(QPoint(18, 18)));
    inner->setFrame(CGRectMake(0, 15, 5, 5));
    EXPECT_EQ(shown_.pixel(12, 12), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 17), QColor(Qt::green));
}

TEST_F(CompositorTest, APictureOfALayerFollowsWhatChangedWhileItWasCovered) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), red);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 0, 40, 10), green);
    page->layer().peer().keepsPicture = true;
    row->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::green));
    const auto cover = shown_.add(CGRectMake(0, 0, 40, 40), blue);
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::blue));
    row->setBackgroundColor(DesktopColor::fixed(blue));
    ShownScreen::put(*page, CGRectMake(0, 30, 40, 10), green);
    EXPECT_EQ(shown_.pixel(2, 35), QColor(Qt::blue));
    cover->setFrame(CGRectMake(0, 5, 40, 28)); // by which a part of each is seen
    cover->setBackgroundColor(DesktopColor::fixed(red));
    EXPECT_EQ(shown_.pixel(2, 2), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(2, 35), QColor(Qt::green));
    cover->peer().removeFromSuperview();
    EXPECT_EQ(shown_.pixel(2, 7), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(2, 20), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 31), QColor(Qt::green));
}

// What would be painted beyond the smaller picture, the sanitizers notice.
TEST_F(CompositorTest, APictureOfALayerShrinksWhichWasNotSeenWhole) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), red);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 0, 40, 10), green);
    page->layer().peer().keepsPicture = true;
    row->layer().peer().keepsPicture = true;
    const auto cover = shown_.add(CGRectMake(0, 20, 40, 20), blue);
    EXPECT_EQ(shown_.pixel(2, 15), QColor(Qt::red));
    row->peer().removeFromSuperview();
    page->setFrame(CGRectMake(0, 0, 40, 10));
    cover->peer().removeFromSuperview();
    EXPECT_EQ(shown_.pixel(2, 5), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(2, 15), white);
    EXPECT_EQ(shown_.pixel(2, 30), white);
}

TEST_F(CompositorTest, APictureOfALayerIsPaintedSmallerWithItsRoundCorners) {
    const auto view = shown_.add(CGRectMake(0, 0, 40, 40), red);
    ShownScreen::put(*view, CGRectMake(0, 20, 40, 20), blue);
    view->layer().setCornerRadius(8);
    view->setClipsToBounds(true);
    view->layer().peer().keepsPicture = true;
    view->peer().setTransform(AffineTransform::scale(0.75)); // from 5 to 35
    EXPECT_EQ(shown_.pixel(4, 20), white);
    EXPECT_EQ(shown_.pixel(5, 5), white);
    EXPECT_EQ(shown_.pixel(20, 6), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(20, 33), QColor(Qt::blue));
    EXPECT_EQ(shown_.pixel(20, 36), white);
}

TEST_F(CompositorTest, ABackdropInALayerThatKeepsAPictureShowsWhatIsBehindTheLayer) {
    shown_.put(CGRectMake(0, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto card = shown_.add(CGRectMake(0, 0, 40, 40), ColorComponents{.alpha = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(5, 5, 30, 30));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    card->addSubview(panel);
    const auto blurred = shown_.pixel(18, 20).red();
    EXPECT_GT(blurred, 20);
    card->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(18, 20).red(), blurred);
    card->setBackgroundColor(DesktopColor::fixed(red));
    EXPECT_EQ(shown_.pixel(18, 20), QColor(Qt::red));
}

TEST(Compositor, AWideBackdropShowsKeptPicturesAsItShowsTheirLayers) {
    ShownScreen shown({120, 160}, 3);
    const auto page = shown.add(CGRectMake(0, 0, 120, 160), green);
    const auto row = ShownScreen::add(*page, CGRectMake(0, 80, 60, 80), red);
    ShownScreen::put(*row, CGRectMake(30, 0, 30, 40), blue);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0.5, 120, 159));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown.window->addSubview(panel);
    const auto seen = shown.compositor.render().copy();
    EXPECT_NE(seen.pixel(30, 400), seen.pixel(330, 400));
    const auto expectAlike = [&](const char* what) {
        const auto& picture = shown.compositor.render();
        for (auto y = 9; y < picture.height(); y += 15) {
            for (auto x = 4; x < picture.width(); x += 15) {
                EXPECT_NEAR(qRed(picture.pixel(x, y)), qRed(seen.pixel(x, y)), 8) << what << x << ", " << y;
                EXPECT_NEAR(qGreen(picture.pixel(x, y)), qGreen(seen.pixel(x, y)), 8) << what;
            }
        }
    };
    row->layer().peer().keepsPicture = true;
    expectAlike("a row: ");
    page->layer().peer().keepsPicture = true;
    expectAlike("a row within a page: ");
    row->layer().peer().keepsPicture = false;
    expectAlike("a page: ");
}

TEST_F(CompositorTest, ABackdropFollowsWhatIsBehindIt) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), green);
    page->layer().peer().keepsPicture = true;
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown_.window->addSubview(panel);
    expectNear(shown_.pixel(20, 20), 0, 255, 0);
    page->setBackgroundColor(DesktopColor::fixed(red));
    expectNear(shown_.pixel(20, 20), 255, 0, 0);
}

TEST_F(CompositorTest, WhatIsCoveredIsSeenThroughABackdropBesideIt) {
    shown_.put(CGRectMake(20, 0, 20, 40), ColorComponents{.red = 0, .green = 0, .blue = 0});
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    shown_.window->addSubview(panel);
    const auto blurred = shown_.pixel(22, 20).red();
    EXPECT_GT(blurred, 20);
    shown_.put(CGRectMake(0, 0, 20, 40), green);
    EXPECT_EQ(shown_.pixel(22, 20).red(), blurred);
    EXPECT_EQ(shown_.pixel(10, 20), QColor(Qt::green));
}

TEST_F(CompositorTest, ABackdropHasOnlyThatPaintedWhichItShows) {
    const auto page = shown_.add(CGRectMake(0, 0, 40, 40), green);
    page->layer().peer().keepsPicture = true;
    const auto upper = make<CountedView>();
    upper->setFrame(CGRectMake(0, 0, 40, 10));
    page->addSubview(upper);
    const auto lower = make<CountedView>();
    lower->setFrame(CGRectMake(0, 30, 40, 10));
    page->addSubview(lower);
    const auto cover = shown_.add(CGRectMake(0, 0, 40, 40), blue);
    const auto panel = make<UIView>();
    panel->setFrame(CGRectMake(0, 28, 40, 12));
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 20, .saturation = 1};
    shown_.window->addSubview(panel);
    cover->setFrame(CGRectMake(0, 0, 40, 28));
    shown_.compositor.render();
    EXPECT_EQ(upper->paintings(), 0);
    EXPECT_EQ(lower->paintings(), 1);
    cover->peer().removeFromSuperview();
    panel->setFrame(CGRectMake(0, 0, 40, 40));
    shown_.compositor.render();
    EXPECT_EQ(upper->paintings(), 1);
    EXPECT_EQ(lower->paintings(), 1);
}

TEST(Compositor, APictureOfTextsIsPaintedInBandsAsTheyComeToBeSeen) {
    ShownScreen shown({40, 400}, 3);
    const auto page = shown.add(CGRectMake(0, 390, 40, 400), green);
    page->layer().peer().keepsPicture = true;
    std::vector<Ref<CountedView>> texts;
    for (const auto top : {0, 60, 120, 180}) {
        texts.push_back(make<CountedView>());
        texts.back()->layer().peer().keepsPicture = false;
        texts.back()->setFrame(CGRectMake(0, top, 40, 20));
        page->addSubview(texts.back());
    }
    const auto expectPaintings = [&](const std::vector<int>& expected) {
        shown.compositor.render();
        std::vector<int> paintings(texts.size());
        std::ranges::transform(texts, paintings.begin(), [](const auto& text) { return text->paintings(); });
        EXPECT_EQ(paintings, expected);
    };
    expectPaintings({1, 1, 0, 0});
    page->setFrame(CGRectMake(0, 320, 40, 400)); // up to the end of the first 256 pixels
    expectPaintings({1, 1, 0, 0});
    page->setFrame(CGRectMake(0, 310, 40, 400));
    expectPaintings({1, 1, 1, 0});
    page->setFrame(CGRectMake(0, 0, 40, 400));
    expectPaintings({1, 1, 1, 1});
}

TEST_F(CompositorTest, AScaledPictureLetsThroughWhatIsBehindItsEdges) {
    const auto view = shown_.add(CGRectMake(10, 10, 20, 20), red);
    view->layer().peer().keepsPicture = true;
    view->peer().setTransform(AffineTransform::scale(1.6));
    const auto& picture = shown_.compositor.render();
    for (auto x = 0; x < 40; ++x) {
        EXPECT_EQ(picture.pixelColor(x, 20).alpha(), 255) << x;
        EXPECT_EQ(picture.pixelColor(x, 20).red(), 255) << x; // white, red or between them
    }
    EXPECT_EQ(picture.pixelColor(20, 20), QColor(Qt::red));
}

TEST_F(CompositorTest, WhatIsBeneathAnOpaqueLayersRoundCornersIsSeen) {
    shown_.put(CGRectMake(0, 0, 40, 40), green);
    const auto view = shown_.add(CGRectMake(0, 0, 40, 40), red);
    view->layer().setCornerRadius(12);
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(39, 39), QColor(Qt::green));
    view->layer().peer().keepsPicture = true;
    EXPECT_EQ(shown_.pixel(0, 0), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(20, 20), QColor(Qt::red));
}

TEST_F(CompositorTest, PaintsWindowsFromBackToFront) {
    const auto front = make<UIWindow>();
    shown_.screen.addWindow(front);
    ShownScreen::put(*front, CGRectMake(0, 0, 10, 10), green);
    EXPECT_EQ(shown_.pixel(5, 5), QColor(Qt::green));
    EXPECT_EQ(shown_.pixel(15, 15), white);
    shown_.screen.removeWindow(*front);
    EXPECT_EQ(shown_.pixel(5, 5), white);
}

} // namespace
