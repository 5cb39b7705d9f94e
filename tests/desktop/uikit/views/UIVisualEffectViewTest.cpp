#include "UIKit/UIVisualEffectView.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class UIVisualEffectViewTest : public testing::Test {
protected:
    UIVisualEffectViewTest() {
        shown_.put(CGRectMake(0, 0, 80, 160), red);
        shown_.put(CGRectMake(80, 0, 80, 160), blue);
    }

    void putView(const Ref<UIBlurEffect>& effect) {
        const auto view = UIVisualEffectView::initWithEffect(effect);
        view->setFrame(CGRectMake(0, 0, 160, 160));
        shown_.window->addSubview(view);
    }

    ShownScreen shown_{{160, 160}};
};

} // namespace

TEST_F(UIVisualEffectViewTest, BlursAndTintsWhatLiesBehindIt) {
    putView(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::Regular));
    const auto middle = shown_.pixel(80, 80);
    EXPECT_GT(middle.red(), 60);
    EXPECT_GT(middle.blue(), 60);
    EXPECT_GT(middle.green(), 60);
}

TEST_F(UIVisualEffectViewTest, IsDarkInTheDark) {
    putView(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::Regular));
    const auto light = shown_.pixel(40, 80).lightness();
    shown_.window->peer().setTraitOverride([](Traits& traits) { traits.style = UserInterfaceStyle::Dark; });
    EXPECT_LT(shown_.pixel(40, 80).lightness(), light - 60);
}

TEST_F(UIVisualEffectViewTest, ShowsNothingWithoutAnEffect) {
    putView(nullptr);
    EXPECT_EQ(shown_.pixel(79, 80), QColor(Qt::red));
    EXPECT_EQ(shown_.pixel(80, 80), QColor(Qt::blue));
}
