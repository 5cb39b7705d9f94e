#include "keyboard/KeyboardKey.h"

#include "screen/Compositor.h"
#include "screen/TouchFixture.h"

#include <array>
#include <string>

namespace {

using Action = KeyboardLayout::Action;

class KeyboardKeyTest : public TouchFixture {
protected:
    Ref<KeyboardKey> add(Action action, const std::string& text, const std::string& word = {}) {
        auto key =
            make<KeyboardKey>(KeyboardLayout::Key{action, text, CGRectMake(100, 100, 40, 54), word},
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

TEST_F(KeyboardKeyTest, IsCalledByWhatIsWrittenOnIt) {
    EXPECT_EQ(add(Action::Type, "a")->peer().accessibility().label, "a");
    EXPECT_EQ(add(Action::Type, " ", "Leerzeichen")->peer().accessibility().label, "Leerzeichen");
}

TEST_F(KeyboardKeyTest, HasNoCapBelowTheRowsOfAPhone) {
    const auto bare = colorOfCap();
    static_cast<void>(add(Action::ChangeLanguage, "globe"));
    EXPECT_EQ(colorOfCap(), bare);
    static_cast<void>(add(Action::ShowNumbers, "123"));
    EXPECT_NE(colorOfCap(), bare);
}

} // namespace
