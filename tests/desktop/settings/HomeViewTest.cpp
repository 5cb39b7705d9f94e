#include "HomeView.h"

#include "CALayerPeer.h"
#include "TestDevice.h"
#include "controls/UIControlPeer.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UILabelPeer.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

class HomeViewTest : public testing::Test {
protected:
    void show(Idiom idiom) {
        screen.emplace(Screen::Options{.idiom = idiom});
        window = make<UIWindow>();
        home = make<HomeView>([this] { ++openings; });
        home->setFrame(screen->bounds());
        window->addSubview(home);
        screen->addWindow(window);
        screen->layoutIfNeeded();
    }

    ~HomeViewTest() override {
        home = nullptr;
        window = nullptr;
    }

    TestDevice device;
    std::optional<Screen> screen;
    Ref<UIWindow> window;
    Ref<HomeView> home;
    int openings = 0;
};

} // namespace

TEST_F(HomeViewTest, SettingsIsTheFirstInTheGridOfAPhone) {
    show(Idiom::Phone);
    EXPECT_EQ(home->settingsIconFrame(), CGRectMake(27, 76, 60, 60));
}

TEST_F(HomeViewTest, IconsAreLargerOnATablet) {
    show(Idiom::Pad);
    EXPECT_EQ(home->settingsIconFrame(), CGRectMake(92, 86, 76, 76));
}

TEST_F(HomeViewTest, TheIconIsAButtonCalledSettings) {
    show(Idiom::Phone);
    auto* const icon = dynamic_cast<UIControl*>(screen->hitTest({57, 106}));
    ASSERT_NE(icon, nullptr);
    const auto accessibility = icon->peer().accessibility();
    EXPECT_EQ(accessibility.label, "Settings");
    EXPECT_EQ(accessibility.role, AccessibilityRole::Button);
    EXPECT_TRUE(accessibility.isElement);
    icon->sendActionsForControlEvents(UIControlEvents::TouchUpInside);
    EXPECT_EQ(openings, 1);
}

TEST_F(HomeViewTest, TheWallpaperDoesNotOpenAnything) {
    show(Idiom::Phone);
    EXPECT_EQ(dynamic_cast<UIControl*>(screen->hitTest({200, 500})), nullptr);
    EXPECT_EQ(openings, 0);
}

TEST_F(HomeViewTest, AnIconUnderAFingerIsDimmed) {
    show(Idiom::Phone);
    auto* const icon = dynamic_cast<UIControl*>(screen->hitTest({57, 106}));
    ASSERT_NE(icon, nullptr);
    auto& peer = peerOf<UIControlPeer>(*icon);
    const auto& picture = peer.subviews().front();
    EXPECT_EQ(picture->layer().peer().number(LayerProperty::Opacity), 1);
    peer.setHighlighted(true);
    EXPECT_LT(picture->layer().peer().number(LayerProperty::Opacity), 1);
    peer.setHighlighted(false);
    EXPECT_EQ(picture->layer().peer().number(LayerProperty::Opacity), 1);
}

TEST_F(HomeViewTest, TheNameIsInTheMiddleBelowTheIconAndMayBeWider) {
    show(Idiom::Phone);
    const auto& icon = *home->peer().subviews().back();
    const auto& name = *icon.peer().subviews().back();
    EXPECT_EQ(name.peer().convertTo(*home, name.bounds()), CGRectMake(27 - 12, 76 + 60 + 5, 60 + 24, 15));
    EXPECT_EQ(peerOf<UILabelPeer>(dynamic_cast<const UILabel&>(name)).fontStyle(), FontStyle{.size = 12});
}
