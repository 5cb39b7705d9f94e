#include "screen/Compositor.h"

#include "DesktopBezierPath.h"
#include "screen/CompositorFixture.h"

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

const QColor white = Qt::white;

class CompositorTest : public CompositorFixture {};

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
    expectNear(shown_.pixel(5, 5),
               QColor(128, 255, 128)); // green over white: nothing of the red shines through
    expectNear(shown_.pixel(15, 15), QColor(255, 128, 128));
}

TEST_F(CompositorTest, FadesWhatIsWithinAFadedView) {
    const auto view = shown_.add(CGRectMake(0, 0, 20, 20), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 10, 10), green);
    view->setAlpha(0.5);
    inner->setAlpha(0.5);
    expectNear(shown_.pixel(5, 5), QColor(191, 191, 128));
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

TEST_F(CompositorTest, TintsNothingBeyondABackdropsRoundCorners) {
    const auto panel = shown_.add(CGRectMake(5, 10, 30, 20), red);
    panel->layer().peer().backdrop = Backdrop{.blurRadius = 4, .saturation = 1};
    panel->layer().setCornerRadius(10);
    for (const auto& [alpha, tinted] :
         {std::pair{1.0, QColor(255, 0, 0)}, std::pair{0.5, QColor(255, 127, 127)}}) {
        panel->setAlpha(alpha);
        EXPECT_EQ(shown_.pixel(5, 10), white);
        EXPECT_EQ(shown_.pixel(34, 29), white);
        expectNear(shown_.pixel(8, 20), tinted);
        expectNear(shown_.pixel(20, 20), tinted);
    }
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
