#include "keyboard/KeyboardKey.h"

#include "screen/Compositor.h"
#include "screen/TouchFixture.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

using Action = KeyboardLayout::Action;

class KeyboardKeyTest : public TouchFixture {
protected:
    using TouchFixture::TouchFixture;

    Ref<KeyboardKey> add(Action action, const std::string& text, const std::string& word = {}) {
        auto key =
            make<KeyboardKey>(KeyboardLayout::Key{action, text, CGRectMake(100, 100, 40, 54), word},
                              [this](const KeyboardLayout::Key& pressed) { events.push_back(pressed.text); });
        key->setFrame(key->key().frame);
        window->addSubview(key);
        return key;
    }

    QColor colorOfCap() { return compositor_.render().pixelColor(3 * 109, 3 * 112); }

    /// What is darkest in a part of the picture. \param rect in points
    int darkestIn(const QRect& rect) {
        const auto picture = compositor_.render().copy({3 * rect.topLeft(), 3 * rect.size()});
        auto darkest = 255;
        for (auto y = 0; y < picture.height(); ++y) {
            for (auto x = 0; x < picture.width(); ++x)
                darkest = std::min(darkest, qGray(picture.pixel(x, y)));
        }
        return darkest;
    }

    Compositor compositor_{screen};
};

class PadKeyTest : public KeyboardKeyTest {
protected:
    PadKeyTest() : KeyboardKeyTest({.idiom = Idiom::Pad}) {}
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
    const auto key = add(Action::Type, " ");
    const auto rest = colorOfCap();
    EXPECT_EQ(rest, QColor(Qt::white));
    down(120, 120);
    EXPECT_LT(colorOfCap().lightness(), rest.lightness());
    up(120, 120);
    EXPECT_EQ(colorOfCap(), rest);
}

TEST_F(PadKeyTest, TurnsItsBrightnessRoundWithoutABalloon) {
    const auto key = add(Action::Type, "a");
    EXPECT_EQ(colorOfCap(), QColor(Qt::white));
    down(120, 120);
    EXPECT_FALSE(key->balloon());
    EXPECT_LT(colorOfCap().lightness(), QColor(Qt::white).lightness());
}

TEST_F(KeyboardKeyTest, HasABalloonAboveItWhileAFingerIsOnIt) {
    const auto key = add(Action::Type, "a");
    EXPECT_FALSE(key->balloon());
    down(120, 120);
    ASSERT_TRUE(key->balloon());
    EXPECT_EQ(screenFrame(*key->balloon()), CGRectMake(90, 47, 60, 101));
    move(350, 500);
    EXPECT_FALSE(key->balloon());
    move(120, 120);
    EXPECT_TRUE(key->balloon());
    up(120, 120);
    EXPECT_FALSE(key->balloon());
    EXPECT_TRUE(key->peer().subviews().empty());
}

TEST_F(KeyboardKeyTest, ItsLetterIsInTheBalloonInPlaceOfOnIt) {
    const auto key = add(Action::Type, "a");
    window->setBackgroundColor(UIColor::whiteColor());
    const QRect onKey(105, 110, 30, 36);
    const QRect inHead(100, 50, 40, 40);
    EXPECT_EQ(darkestIn(onKey), 0);
    EXPECT_EQ(darkestIn(inHead), 255);
    down(120, 120);
    EXPECT_EQ(darkestIn(onKey), 255);
    EXPECT_EQ(darkestIn(inHead), 0);
    EXPECT_LT(darkestIn(QRect(85, 60, 4, 20)), 255) << "its shadow";
    screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_EQ(compositor_.render().pixelColor(3 * 95, 3 * 60), QColor(107, 107, 107));
}

TEST_F(KeyboardKeyTest, ABalloonShowsWhatIsTyped) {
    const auto key = add(Action::Type, "i");
    const QRect tallest(112, 60, 16, 5); // where a small letter has its dot
    down(120, 120);
    const auto small = compositor_.render();
    up(120, 120);
    key->setShifted(true);
    down(120, 120);
    EXPECT_NE(compositor_.render(), small);
    EXPECT_EQ(darkestIn(tallest), 0);
}

TEST_F(KeyboardKeyTest, ABalloonStaysWithinTheScreen) {
    const auto frame = [this](double x) {
        const auto key = add(Action::Type, "a");
        key->setFrame(CGRectMake(x, 100, 39, 54));
        down(x + 20, 120);
        const auto place = screenFrame(*key->balloon());
        up(x + 20, 120);
        key->peer().removeFromSuperview();
        return place;
    };
    EXPECT_EQ(frame(0), CGRectMake(3, 47, 59, 101)) << "flush with the key";
    EXPECT_EQ(frame(351), CGRectMake(328, 47, 59, 101));
    EXPECT_EQ(frame(195).origin.x, 185);
}

TEST_F(KeyboardKeyTest, ABalloonIsInFrontOfOtherKeysAndTakesNoTouches) {
    const auto key = add(Action::Type, "a");
    const auto upper = add(Action::Type, "b");
    upper->setFrame(CGRectMake(100, 46, 40, 54));
    down(120, 120);
    EXPECT_EQ(window->peer().subviews().back(), key);
    EXPECT_EQ(screen.hitTest({120, 70}), upper.get());
    EXPECT_EQ(screen.hitTest({120, 120}), key.get());
}

TEST_F(KeyboardKeyTest, WhatIsNoLetterHasNoBalloon) {
    using Named = std::pair<Action, std::string>;
    for (const auto& [action, text] :
         {Named(Action::Type, " "), Named(Action::Delete, "delete"), Named(Action::Shift, "shift"),
          Named(Action::Return, "return"), Named(Action::ShowNumbers, "123")}) {
        const auto key = add(action, text);
        down(120, 120);
        EXPECT_FALSE(key->balloon()) << text;
        up(120, 120);
        key->peer().removeFromSuperview();
    }
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
