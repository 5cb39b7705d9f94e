#include "keyboard/Keyboard.h"

#include "PresentedStandIn.h"
#include "RectGeometry.h"
#include "text/TextFieldFixture.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

using std::chrono::milliseconds;

class KeyboardTest : public TextFieldFixture {
protected:
    using TextFieldFixture::TextFieldFixture;

    void show() {
        field->becomeFirstResponder();
        settle();
    }

    [[nodiscard]] Keyboard& keyboard() { return dynamic_cast<Keyboard&>(screen.keyboard()); }

    /// Taps the first key with that on it.
    void tapKey(std::string_view text) {
        const auto& keys = keyboard().view()->keys();
        const auto found = std::ranges::find(
            keys, text, [](const auto& key) -> std::string_view { return key->key().text; });
        ASSERT_NE(found, keys.end()) << text;
        const auto place = (*found)->peer().convertToScreen((*found)->bounds());
        tap(CGRectGetMidX(place), CGRectGetMidY(place));
    }
};

class ArabicKeyboardTest : public KeyboardTest {
protected:
    ArabicKeyboardTest() : KeyboardTest({.locale = "ar_EG"}) {}
};

TEST_F(KeyboardTest, IsShownWhileATextHasIt) {
    EXPECT_FALSE(keyboard().isShown());
    field->becomeFirstResponder();
    run();
    EXPECT_TRUE(keyboard().isShown());
    EXPECT_EQ(screen.keyboardHeight(), 336);
    peer().resignFirstResponder();
    run();
    EXPECT_FALSE(keyboard().isShown());
    EXPECT_EQ(screen.keyboardHeight(), 0);
}

TEST_F(KeyboardTest, SlidesFromBelowTheScreen) {
    field->becomeFirstResponder();
    run();
    const auto& layer = keyboard().view()->layer().peer();
    const auto shownTop = [&layer] { return layer.shownToSuperlayer()(CGPoint{0, 0}).y; };
    EXPECT_NEAR(shownTop(), 844, 0.5);
    advance(milliseconds(100));
    EXPECT_LT(shownTop(), 744);
    EXPECT_GT(shownTop(), 508);
    settle();
    EXPECT_NEAR(shownTop(), 508, 1e-6);
    EXPECT_EQ(keyboard().view()->frame(), CGRectMake(0, 508, 390, 336));
}

TEST_F(KeyboardTest, IsGoneWhenItHasSlidDown) {
    show();
    peer().resignFirstResponder();
    run();
    EXPECT_FALSE(keyboard().view()->peer().window()->peer().isHidden());
    settle();
    EXPECT_TRUE(keyboard().view()->peer().window()->peer().isHidden());
    EXPECT_EQ(screen.hitTest({100, 700}), nullptr);
    show();
    EXPECT_FALSE(keyboard().view()->peer().window()->peer().isHidden());
}

TEST_F(KeyboardTest, StaysWhenAnotherTextTakesIt) {
    const auto listener = make<PresentedStandIn>();
    screen.presentations().add(*listener, *listener);
    const auto other = addField();
    show();
    other->becomeFirstResponder();
    settle();
    field->becomeFirstResponder();
    peer().resignFirstResponder();
    other->becomeFirstResponder();
    settle();
    EXPECT_EQ(listener->keyboardHeights, std::vector<double>{336});
    peerOf<UITextFieldPeer>(*other).resignFirstResponder();
    settle();
    EXPECT_EQ(listener->keyboardHeights, (std::vector<double>{336, 0}));
}

TEST_F(KeyboardTest, IsInFrontOfTheApplication) {
    show();
    const auto* const hit = screen.hitTest({195, 600});
    ASSERT_NE(hit, nullptr);
    EXPECT_TRUE(hit->peer().isDescendantOf(*keyboard().view()));
}

TEST_F(KeyboardTest, LeavesTheHomeStripToTheApplication) {
    show();
    EXPECT_EQ(screen.hitTest({195, 840}), nullptr);
    EXPECT_NE(screen.hitTest({195, 800}), nullptr);
}

TEST_F(KeyboardTest, TypesWithItsKeys) {
    show();
    for (const auto* const key : {"a", "b", "c", " ", "x"})
        tapKey(key);
    EXPECT_EQ(field->text(), "Abc x");
    tapKey("delete");
    tapKey("delete");
    EXPECT_EQ(field->text(), "Abc");
    tapKey("shift");
    tapKey("q");
    tapKey("q");
    EXPECT_EQ(field->text(), "AbcQq");
    tapKey("123");
    tapKey("7");
    tapKey("#+=");
    tapKey("€");
    tapKey("ABC");
    tapKey("z");
    EXPECT_EQ(field->text(), "AbcQq7€z");
    tapKey("return");
    EXPECT_TRUE(peer().fieldIsFirstResponder());
    EXPECT_EQ(field->text(), "AbcQq7€z");
}

TEST_F(KeyboardTest, BeginsWithALargeLetterInAnEmptyTextOnly) {
    show();
    EXPECT_TRUE(keyboard().view()->isShifted());
    peer().resignFirstResponder();
    peer().setText("x");
    settle();
    show();
    EXPECT_FALSE(keyboard().view()->isShifted());
}

TEST_F(KeyboardTest, AFingerOnItDoesNotTakeItAway) {
    show();
    tap(195, 520);
    EXPECT_TRUE(peer().fieldIsFirstResponder());
}

TEST_F(KeyboardTest, FollowsTheScreensSize) {
    show();
    screen.setSize({600, 900});
    settle();
    EXPECT_EQ(keyboard().view()->frame(), CGRectMake(0, 564, 600, 336));
    EXPECT_NEAR(CGRectGetMaxX(keyboard().view()->keys()[9]->frame()), 600, 1e-6);
}

TEST_F(KeyboardTest, EndsWithTheTextThatHasIt) {
    const auto around = make<UIView>();
    window->addSubview(around);
    field->peer().removeFromSuperview();
    around->addSubview(field);
    show();
    around->peer().removeFromSuperview();
    settle();
    EXPECT_FALSE(keyboard().isShown());
}

TEST_F(KeyboardTest, WritesLettersLargeAsTheTextAsks) {
    using Capitals = TextInputTraits::Capitals;
    const std::vector<std::tuple<Capitals, const char*, bool>> table{
        {Capitals::None, "", false},        {Capitals::Words, "", true},
        {Capitals::Words, "a b", false},    {Capitals::Words, "a ", true},
        {Capitals::Sentences, "a ", false}, {Capitals::Sentences, "A. ", true},
        {Capitals::Sentences, "A.", false}, {Capitals::All, "AB", true},
    };
    for (const auto& [capitals, text, large] : table) {
        peer().setTextInputTraits({.capitals = capitals});
        peer().setText(text);
        show();
        EXPECT_EQ(keyboard().view()->isShifted(), large) << text;
        peer().resignFirstResponder();
        settle();
    }
}

TEST_F(KeyboardTest, BeginsAnewForAnotherText) {
    const auto other = addField();
    peerOf<UITextFieldPeer>(*other).setTextInputTraits({.keys = TextInputTraits::Keys::Numbers});
    show();
    EXPECT_EQ(keyboard().view()->keys().front()->key().text, "q");
    other->becomeFirstResponder();
    settle();
    EXPECT_EQ(keyboard().view()->keys().front()->key().text, "1");
}

TEST_F(ArabicKeyboardTest, TypesTheLettersOfItsLanguage) {
    show();
    EXPECT_FALSE(keyboard().view()->isShifted());
    for (const auto* const key : {"س", "ل", "ا", "م"})
        tapKey(key);
    EXPECT_EQ(field->text(), "سلام");
    tapKey("123");
    tapKey("؟");
    tapKey("ABC");
    tapKey("ش");
    EXPECT_EQ(field->text(), "سلام؟ش");
}

TEST_F(ArabicKeyboardTest, AKeyLeadsToLatinLettersAndBack) {
    show();
    tapKey("123");
    tapKey("globe");
    EXPECT_TRUE(keyboard().view()->isShifted());
    for (const auto* const key : {"q", "x"})
        tapKey(key);
    EXPECT_EQ(field->text(), "Qx");
    peer().resignFirstResponder();
    settle();
    show();
    EXPECT_EQ(keyboard().view()->keys().front()->key().text, "q") << "what was chosen stays";
    tapKey("globe");
    tapKey("ض");
    EXPECT_EQ(field->text(), "Qxض");
}

} // namespace
