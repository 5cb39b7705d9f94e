#include "views/BackdropViewPeer.h"

#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

namespace {

constexpr CGSize size{160, 160};
const CGRect whole = CGRectMake(0, 0, size.width, size.height);

Ref<_UIBackdropView> backdrop(bool autosizes, const CGRect& frame = {}) {
    return _UIBackdropView::initWithFrame(frame, autosizes, _UIBackdropViewSettings::settingsForStyle(2));
}

class BackdropViewPeerTest : public testing::Test {
protected:
    /// Red at the left, blue at the right.
    void putHalves() {
        shown_.put(CGRectMake(0, 0, size.width / 2, size.height), red);
        shown_.put(CGRectMake(size.width / 2, 0, size.width / 2, size.height), blue);
    }

    [[nodiscard]] int step(int x) {
        return std::abs(shown_.pixel(x, 80).red() - shown_.pixel(x + 1, 80).red());
    }

    ShownScreen shown_{size};
};

TEST_F(BackdropViewPeerTest, IsOfThePlatformsClass) {
    EXPECT_EQ(backdrop(true)->isa().name(), "_UIBackdropView");
}

TEST_F(BackdropViewPeerTest, FillsItsSuperviewAndFollowsItsSize) {
    for (const auto& first : {CGRectMake(0, 0, 0, 0), CGRectMake(10, 20, 30, 40), whole}) {
        const auto superview = shown_.add(first, red);
        const auto view = backdrop(true, CGRectMake(3, 4, 5, 6));
        superview->insertSubview(view, 0);
        EXPECT_EQ(view->frame(), superview->bounds());
        for (const auto& next :
             {CGRectMake(0, 0, 100, 7), CGRectMake(5, 5, 7, 100), CGRectMake(0, 0, 0, 0), whole}) {
            superview->setFrame(next);
            EXPECT_EQ(view->frame(), superview->bounds());
        }
        superview->peer().removeFromSuperview();
    }
}

TEST_F(BackdropViewPeerTest, FillsTheNextSuperviewToo) {
    const auto view = backdrop(true);
    shown_.add(CGRectMake(0, 0, 10, 20), red)->addSubview(view);
    const auto next = shown_.add(CGRectMake(0, 0, 30, 40), red);
    next->addSubview(view);
    EXPECT_EQ(view->frame(), next->bounds());
}

TEST_F(BackdropViewPeerTest, KeepsItsFrameUnlessItAutosizes) {
    const auto frame = CGRectMake(3, 4, 5, 6);
    const auto view = backdrop(false, frame);
    const auto superview = shown_.add(CGRectMake(0, 0, 30, 30), red);
    superview->addSubview(view);
    superview->setFrame(whole);
    EXPECT_EQ(view->frame(), frame);
}

TEST_F(BackdropViewPeerTest, BlursWhatLiesBehindIt) {
    putHalves();
    EXPECT_EQ(step(79), 255);
    const auto left = shown_.pixel(5, 80);
    shown_.window->addSubview(backdrop(true));
    for (int x = 1; x < 158; ++x)
        EXPECT_LE(step(x), 3) << x;
    EXPECT_GT(shown_.pixel(5, 80).red(), shown_.pixel(155, 80).red() + 20);
    EXPECT_LT(shown_.pixel(5, 80).blue(), shown_.pixel(155, 80).blue());
    EXPECT_NE(shown_.pixel(5, 80), left);
}

TEST_F(BackdropViewPeerTest, IsLightOrDarkAsTheAppearanceIs) {
    shown_.put(whole, {.red = 0.5, .green = 0.5, .blue = 0.5});
    shown_.window->addSubview(backdrop(true));
    EXPECT_GT(shown_.pixel(80, 80).lightness(), 200);
    shown_.screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_LT(shown_.pixel(80, 80).lightness(), 70);
}

TEST_F(BackdropViewPeerTest, FollowsWhatChangesBehindIt) {
    const auto behind = shown_.add(whole, red);
    shown_.window->addSubview(backdrop(true));
    const auto before = shown_.pixel(80, 80);
    behind->setBackgroundColor(DesktopColor::fixed(blue));
    EXPECT_LT(shown_.pixel(80, 80).red(), before.red() - 20);
}

TEST_F(BackdropViewPeerTest, LiesBeneathWhatWasThereBefore) {
    putHalves();
    const auto sheet = shown_.add(whole, green);
    ShownScreen::put(*sheet, CGRectMake(70, 70, 20, 20), green);
    sheet->setBackgroundColor(UIColor::clearColor());
    const auto view = backdrop(true);
    sheet->insertSubview(view, 0);
    EXPECT_EQ(sheet->peer().subviews().front(), view);
    EXPECT_EQ(shown_.pixel(80, 80), QColor(Qt::green));
    EXPECT_NE(shown_.pixel(60, 80), QColor(Qt::red));
}

TEST_F(BackdropViewPeerTest, IsCutOffAtItsRoundCorners) {
    shown_.put(whole, red);
    const auto view = backdrop(false, CGRectMake(20, 20, 120, 120));
    view->layer().setCornerRadius(30);
    view->setClipsToBounds(true);
    shown_.window->addSubview(view);
    EXPECT_EQ(shown_.pixel(21, 21), QColor(Qt::red));
    EXPECT_NE(shown_.pixel(80, 80), QColor(Qt::red));
}

TEST_F(BackdropViewPeerTest, ShowsNothingWithoutSettings) {
    shown_.put(whole, red);
    shown_.window->addSubview(_UIBackdropView::initWithFrame({}, true, nullptr));
    EXPECT_EQ(shown_.pixel(80, 80), QColor(Qt::red));
}

/// What is behind a sheet: a page that was made smaller, and what dims it.
TEST_F(BackdropViewPeerTest, BlursAScaledPageAndItsDimming) {
    shown_.window->setBackgroundColor(UIColor::blackColor());
    const auto page = shown_.add(whole, {.red = 1, .green = 1, .blue = 1});
    ShownScreen::put(*page, CGRectMake(0, 0, size.width / 2, size.height), red);
    page->peer().setTransform(AffineTransform::scale(0.949));
    const auto dimming = shown_.add(whole, {.alpha = 0});
    const auto sheet = shown_.add(CGRectMake(0, 20, size.width, size.height - 20), {.alpha = 0});
    sheet->layer().setCornerRadius(10);
    sheet->setClipsToBounds(true);
    sheet->insertSubview(backdrop(true), 0);
    const auto bright = shown_.pixel(120, 90);
    EXPECT_LE(step(79), 3);
    EXPECT_GT(shown_.pixel(120, 90).green(), shown_.pixel(40, 90).green() + 5);
    dimming->setBackgroundColor(DesktopColor::fixed({.alpha = 0.5}));
    EXPECT_LT(shown_.pixel(120, 90).lightness(), bright.lightness() - 5);
}

TEST_F(BackdropViewPeerTest, EndsWithItsSuperview) {
    Weak<_UIBackdropView> watched;
    {
        const auto superview = make<UIView>();
        const auto view = backdrop(true);
        superview->addSubview(view);
        watched = Weak<_UIBackdropView>(view.get());
        EXPECT_TRUE(watched.strong());
    }
    EXPECT_FALSE(watched.strong());
}

} // namespace
