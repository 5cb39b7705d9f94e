#include "SplitController.h"

#include "TestDevice.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

namespace {

class SplitControllerTest : public testing::Test {
protected:
    SplitControllerTest() {
        window->setFrame(screen.bounds());
        window->setRootViewController(split);
        screen.addWindow(window);
        screen.layoutIfNeeded();
    }

    ~SplitControllerTest() override { screen.removeWindow(*window); }

    TestDevice device;
    Screen screen{{.idiom = Idiom::Pad, .scale = 2}};
    Ref<UIViewController> primary = make<UIViewController>();
    Ref<UIViewController> secondary = make<UIViewController>();
    Ref<SplitController> split = make<SplitController>(primary, secondary);
    Ref<UIWindow> window = make<UIWindow>();
};

} // namespace

TEST_F(SplitControllerTest, PagesStandBesideEachOtherWithALineOfOnePixelBetween) {
    EXPECT_EQ(primary->view().frame(), CGRectMake(0, 0, 320, 1180));
    EXPECT_EQ(secondary->view().frame(), CGRectMake(320.5, 0, 499.5, 1180));
    const auto& views = split->view().peer().subviews();
    ASSERT_EQ(views.size(), 3U);
    EXPECT_EQ(views.back()->frame(), CGRectMake(320, 0, 0.5, 1180));
}

TEST_F(SplitControllerTest, BothAreItsChildren) {
    EXPECT_EQ(split->peer().children(), (std::vector<Ref<UIViewController>>{primary, secondary}));
}

TEST_F(SplitControllerTest, OnlyTheColumnIsNarrow) {
    EXPECT_TRUE(primary->view().peer().traits().compactWidth);
    EXPECT_FALSE(secondary->view().peer().traits().compactWidth);
}

TEST_F(SplitControllerTest, FollowsTheScreensSizeAndScale) {
    screen.setSize({1180, 820});
    screen.setScale(1);
    screen.layoutIfNeeded();
    EXPECT_EQ(primary->view().frame(), CGRectMake(0, 0, 320, 820));
    EXPECT_EQ(secondary->view().frame(), CGRectMake(321, 0, 859, 820));
}
