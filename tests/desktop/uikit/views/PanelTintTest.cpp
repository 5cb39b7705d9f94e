#include "alerts/AlertView.h"
#include "menus/MenuView.h"
#include "navigation/BarBackgroundView.h"
#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// How light a panel is that lies over a middle gray.
int lightnessOf(const Ref<UIView>& panel) {
    ShownScreen shown({300, 300});
    shown.put(CGRectMake(0, 0, 300, 300), {.red = 0.5, .green = 0.5, .blue = 0.5});
    panel->setFrame(CGRectMake(20, 20, 260, 260));
    shown.window->addSubview(panel);
    return shown.pixel(40, 150).lightness();
}

} // namespace

TEST(PanelTintTest, AnAlertsLiesOverWhatIsBehindIt) {
    EXPECT_NEAR(lightnessOf(make<AlertView>("", std::nullopt, [](const auto&) {})), 219, 1);
}

TEST(PanelTintTest, AMenusLiesOverWhatItsShadowDarkens) {
    const DesktopMenu menu("", {});
    EXPECT_NEAR(lightnessOf(make<MenuView>(menu, [](const auto&) {})), 231, 1);
}

TEST(PanelTintTest, ABarsLiesOverWhatIsBehindIt) {
    EXPECT_NEAR(lightnessOf(make<BarBackgroundView>()), 242, 1);
}
