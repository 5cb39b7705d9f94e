#include "keyboard/KeyboardKey.h"

#include "screen/Compositor.h"
#include "screen/TouchFixture.h"

#include <array>
#include <string>

namespace {

using Action = KeyboardLayout::Action;

class KeyboardKeyTest : public TouchFixture {
protected:
    Ref<KeyboardKey> add(Action action, const std::string& text) {
        auto key =
            make<KeyboardKey>(KeyboardLayout::Key{action, text, CGRectMake(100, 100, 40, 54)},
                              [this](const KeyboardLayout::Key& pressed) { events.push_back(pressed.text); });
        key->setFrame(key->key().frame);
        window->addSubview(key);
        return key;
    }

    QColor colorOfCap() { return compositor_.render().pixelColor(3 * 105, 3 * 130); }

    Compositor compositor_{screen};
};

TEST_F(KeyboardKeyTest, TypesWhenTheFingerIsLifted) {
    const auto key = add(Action::Type, "a");
    down(120, 120);
    EXPECT_EQ(takeEvents(), Events{});
    up(120, 120);
    EXPECT_EQ(takeEvents(), Events{"a"});
    down(120, 120);
    up(350, 500);
    EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(KeyboardKeyTest, DeletesWhenTheFingerComesDown) {
    const auto key = add(Action::Delete, "delete");
    down(120, 120);
    EXPECT_EQ(takeEvents(), Events{"delete"});
    up(120, 120);
    EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(KeyboardKeyTest, TurnsItsBrightnessRoundUnderAFinger) {
    const auto key = add(Action::Type, "a");
    const auto rest = colorOfCap();
    EXPECT_EQ(rest, QColor(Qt::white));
    down(120, 120);
    EXPECT_LT(colorOfCap().lightness(), rest.lightness());
    up(120, 120);
    EXPECT_EQ(colorOfCap(), rest);
}

TEST_F(KeyboardKeyTest, LooksLikeWhatItIsFor) {
    const auto shift = add(Action::Shift, "shift");
    const auto rest = colorOfCap();
    EXPECT_NE(rest, QColor(Qt::white));
    shift->setShifted(true);
    EXPECT_EQ(colorOfCap(), QColor(Qt::white));
    shift->setShifted(false);
    screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_LT(colorOfCap().lightness(), rest.lightness());
}

} // namespace
