#include "CALayerPeer.h"
#include "RectGeometry.h"
#include "screen/Compositor.h"
#include "text/TextFieldFixture.h"
#include "time/MainQueueScheduler.h"

#include <QImage>
#include <string>
#include <vector>

namespace {

using std::chrono::milliseconds;

class UITextFieldTest : public TextFieldFixture {
protected:
    [[nodiscard]] bool isWithinText(const CGRect& rect) const {
        const auto room = peer().textRect();
        return rect.origin.x >= room.origin.x && CGRectGetMaxX(rect) <= CGRectGetMaxX(room) &&
               rect.origin.y >= room.origin.y && CGRectGetMaxY(rect) <= CGRectGetMaxY(room);
    }
};

TEST_F(UITextFieldTest, HasThePlatformsNumbersForItsBorders) {
    EXPECT_EQ(static_cast<int>(UITextBorderStyle::None), 0);
    EXPECT_EQ(static_cast<int>(UITextBorderStyle::Line), 1);
    EXPECT_EQ(static_cast<int>(UITextBorderStyle::Bezel), 2);
    EXPECT_EQ(static_cast<int>(UITextBorderStyle::RoundedRect), 3);
}

TEST_F(UITextFieldTest, IsEmptyAtFirst) {
    EXPECT_EQ(field->text(), "");
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_TRUE(peer().caretView().peer().isHidden());
}

TEST_F(UITextFieldTest, KeepsTextAndPlaceholder) {
    peer().setText("first\nsecond");
    EXPECT_EQ(field->text(), "first second");
    EXPECT_EQ(peer().fieldPlaceholder(), "Backup Name");
    peer().setText("");
    EXPECT_EQ(field->text(), "");
}

TEST_F(UITextFieldTest, IsAsHighAsItsBorderAsks) {
    EXPECT_EQ(*peer().intrinsicHeight(), 34);
    field->setBorderStyle(UITextBorderStyle::None);
    EXPECT_EQ(*peer().intrinsicHeight(), 22);
}

TEST_F(UITextFieldTest, IsAsWideAsWhatItShows) {
    const auto empty = *peer().intrinsicWidth();
    peer().setText("A much longer text than that");
    EXPECT_GT(*peer().intrinsicWidth(), empty);
    peer().setText("");
    EXPECT_EQ(*peer().intrinsicWidth(), empty);
}

// The keyboard.

TEST_F(UITextFieldTest, TakesTheKeyboardAndGivesItUp) {
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_TRUE(peer().fieldIsFirstResponder());
    EXPECT_EQ(screen.firstResponder().input(), &peer());
    EXPECT_FALSE(peer().caretView().peer().isHidden());
    EXPECT_TRUE(peer().resignFirstResponder());
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_EQ(screen.firstResponder().input(), nullptr);
    EXPECT_TRUE(peer().caretView().peer().isHidden());
}

TEST_F(UITextFieldTest, HasTheKeyboardOnceItIsInAWindowWhenItAskedBefore) {
    const auto early = make<UITextField>();
    EXPECT_FALSE(early->becomeFirstResponder());
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*early).fieldIsFirstResponder());
    const auto around = make<UIView>();
    around->addSubview(early);
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*early).fieldIsFirstResponder());
    window->addSubview(around);
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*early).fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, HasItNotWhenItGaveItUpBeforeThat) {
    const auto early = make<UITextField>();
    early->becomeFirstResponder();
    peerOf<UITextFieldPeer>(*early).resignFirstResponder();
    window->addSubview(early);
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*early).fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, TakesTheKeyboardFromTheOneThatHasIt) {
    const auto other = addField();
    field->becomeFirstResponder();
    other->becomeFirstResponder();
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*other).fieldIsFirstResponder());
    peer().resignFirstResponder();
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*other).fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, LosesTheKeyboardWithItsWindow) {
    field->becomeFirstResponder();
    field->peer().removeFromSuperview();
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_EQ(screen.firstResponder().input(), nullptr);
    window->addSubview(field);
    EXPECT_FALSE(peer().fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, LosesTheKeyboardWhenItIsSwitchedOff) {
    field->becomeFirstResponder();
    peer().setEnabled(false);
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_FALSE(field->becomeFirstResponder());
    tap(60, 120);
    EXPECT_FALSE(peer().fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, IsGoneWithoutATrace) {
    auto other = addField();
    other->becomeFirstResponder();
    other->peer().removeFromSuperview();
    window->addSubview(other);
    other->becomeFirstResponder();
    other = nullptr;
    window->peer().subviews().back()->peer().removeFromSuperview();
    EXPECT_EQ(screen.firstResponder().input(), nullptr);
}

TEST_F(UITextFieldTest, KeepsTheKeyboardWhenSomethingElseIsTapped) {
    field->becomeFirstResponder();
    tap(300, 400);
    EXPECT_TRUE(peer().fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, OtherViewsNeverHaveTheKeyboard) {
    EXPECT_FALSE(window->becomeFirstResponder());
}

// The finger.

TEST_F(UITextFieldTest, IsTappedForTheKeyboard) {
    peer().setText("Hello world");
    tapAt(3);
    EXPECT_TRUE(peer().fieldIsFirstResponder());
    EXPECT_EQ(shown(), "Hel|lo world");
}

TEST_F(UITextFieldTest, PutsTheCaretWhereItIsTapped) {
    peer().setText("Hello world");
    field->becomeFirstResponder();
    for (const qsizetype position : {0, 1, 5, 6, 10, 11}) {
        tapAt(position);
        EXPECT_EQ(peer().editedText().caret(), position);
        advance(milliseconds(500));
    }
    tap(205, 120);
    EXPECT_EQ(shown(), "Hello world|");
}

struct Taps {
    int count;
    milliseconds pause;
    std::string shown;
};

TEST_F(UITextFieldTest, SelectsTheWordAndThenEverything) {
    const std::vector<Taps> table{
        {1, milliseconds(100), "Hello w|orld"},  {2, milliseconds(100), "Hello [world]"},
        {3, milliseconds(100), "[Hello world]"}, {2, milliseconds(600), "Hello w|orld"},
        {3, milliseconds(600), "Hello w|orld"},
    };
    peer().setText("Hello world");
    field->becomeFirstResponder();
    for (const auto& [count, pause, expected] : table) {
        advance(std::chrono::seconds(2));
        for (auto index = 0; index < count; ++index) {
            tapAt(7);
            advance(pause);
        }
        EXPECT_EQ(shown(), expected) << count << " taps, " << pause.count() << " ms";
    }
}

TEST_F(UITextFieldTest, SelectsWhereAFingerIsDrawn) {
    peer().setText("Hello world");
    field->becomeFirstResponder();
    const auto from = peer().convertToScreen(peer().caretRect(1));
    const auto to = peer().convertToScreen(peer().caretRect(8));
    down(from.origin.x, 120);
    move((from.origin.x + to.origin.x) / 2, 120);
    move(to.origin.x, 120);
    up(to.origin.x, 120);
    EXPECT_EQ(shown(), "H[ello wo]rld");
    EXPECT_TRUE(peer().caretView().peer().isHidden());
}

TEST_F(UITextFieldTest, DoesNothingForAFingerThatIsTakenAway) {
    down(60, 120);
    cancel();
    EXPECT_FALSE(peer().fieldIsFirstResponder());
}

// What is shown.

TEST_F(UITextFieldTest, MovesItsTextSoThatTheCaretIsSeen) {
    field->becomeFirstResponder();
    EXPECT_EQ(peer().scrolled(), 0);
    for (auto count = 0; count < 60; ++count) {
        type("m");
        EXPECT_TRUE(isWithinText(peer().caretRect(peer().editedText().caret()))) << count;
    }
    EXPECT_GT(peer().scrolled(), 300);
    peer().edit([](EditedText& text) { text.moveCaret(EditedText::Step::Line, false); });
    EXPECT_EQ(peer().scrolled(), 0);
    peer().edit([](EditedText& text) { text.moveCaret(EditedText::Step::Line, true); });
    const auto scrolled = peer().scrolled();
    peer().edit([](EditedText& text) { text.deleteBackward(); });
    EXPECT_LT(peer().scrolled(), scrolled);
}

TEST_F(UITextFieldTest, ShowsTheBeginningWithoutTheKeyboard) {
    peer().setText(std::string(80, 'm'));
    field->becomeFirstResponder();
    EXPECT_GT(peer().scrolled(), 0);
    peer().resignFirstResponder();
    EXPECT_EQ(peer().scrolled(), 0);
}

TEST_F(UITextFieldTest, PlacesTheCaretInTextOfEitherDirection) {
    field->becomeFirstResponder();
    for (const auto* const text : {"שלום", "abc שלום def", "مرحبا 123", "😀👍🏽e\u0301"}) {
        peer().setText(text);
        for (qsizetype position = 0; position <= peer().editedText().string().size(); ++position)
            EXPECT_TRUE(isWithinText(peer().caretRect(position))) << text;
    }
    peer().setText("שלום");
    EXPECT_GT(peer().caretRect(0).origin.x, peer().caretRect(4).origin.x);
}

TEST_F(UITextFieldTest, CaretIsLitAndDarkInTurnsAndLitWhileTyping) {
    Compositor compositor(screen);
    field->becomeFirstResponder();
    settle();
    type("a");
    const auto alpha = [&] {
        static_cast<void>(compositor.render());
        return peer().caretView().layer().peer().number(LayerProperty::Opacity);
    };
    EXPECT_EQ(alpha(), 1);
    advance(milliseconds(600));
    EXPECT_EQ(alpha(), 0);
    advance(milliseconds(500));
    EXPECT_EQ(alpha(), 1);
    advance(milliseconds(500));
    type("b");
    EXPECT_EQ(alpha(), 1);
}

TEST_F(UITextFieldTest, BlinkingIsNothingThatWaits) {
    field->becomeFirstResponder();
    settle();
    EXPECT_EQ(Device::current().mainQueue().nextDue(), std::nullopt);
}

/// How many pixels of the field's text are of that colour, more or less.
int pixelsOf(const QImage& picture, const QColor& color) {
    constexpr auto near = 40;
    auto count = 0;
    for (auto y = 310; y < 410; ++y) {
        for (auto x = 45; x < 600; ++x) {
            const auto pixel = picture.pixelColor(x, y);
            count += static_cast<int>(std::abs(pixel.red() - color.red()) < near &&
                                      std::abs(pixel.green() - color.green()) < near &&
                                      std::abs(pixel.blue() - color.blue()) < near);
        }
    }
    return count;
}

TEST_F(UITextFieldTest, PaintsTextPlaceholderCaretAndSelection) {
    constexpr QColor tint(0, 122, 255);
    constexpr QColor selected(204, 228, 255);
    constexpr QColor placeholder(196, 196, 198);
    window->setBackgroundColor(UIColor::whiteColor());
    Compositor compositor(screen);
    EXPECT_GT(pixelsOf(compositor.render(), placeholder), 300);
    EXPECT_EQ(pixelsOf(compositor.render(), Qt::black), 0);
    peer().setText("Hello");
    EXPECT_GT(pixelsOf(compositor.render(), Qt::black), 300);
    EXPECT_EQ(pixelsOf(compositor.render(), tint), 0);
    field->becomeFirstResponder();
    EXPECT_GT(pixelsOf(compositor.render(), tint), 200);
    const auto bare = pixelsOf(compositor.render(), selected);
    peer().edit([](EditedText& text) { text.selectAll(); });
    EXPECT_EQ(pixelsOf(compositor.render(), tint), 0);
    EXPECT_GT(pixelsOf(compositor.render(), selected), bare + 3000);
}

TEST_F(UITextFieldTest, UnderlinesWhatIsComposed) {
    window->setBackgroundColor(UIColor::whiteColor());
    Compositor compositor(screen);
    field->becomeFirstResponder();
    type("kanji");
    const auto plain = pixelsOf(compositor.render(), Qt::black);
    peer().setText("");
    peer().edit([](EditedText& text) { text.compose("kanji", 5); });
    EXPECT_GT(pixelsOf(compositor.render(), Qt::black), plain + 290); // three rows of whole pixels
}

// What it tells.

TEST_F(UITextFieldTest, TellsOfItself) {
    EXPECT_EQ(peer().accessibility().role, AccessibilityRole::TextField);
    EXPECT_EQ(peer().accessibility().label, "Backup Name");
    EXPECT_EQ(peer().accessibility().value, "");
    EXPECT_EQ(peer().shownText(), "Backup Name");
    peer().setText("Mine");
    EXPECT_EQ(peer().accessibility().label, "Backup Name");
    EXPECT_EQ(peer().accessibility().value, "Mine");
    EXPECT_EQ(peer().shownText(), "Mine");
    EXPECT_EQ(peer().fieldPlaceholder(), "Backup Name");
    EXPECT_EQ(peer().fieldText(), "Mine");
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    field->becomeFirstResponder();
    EXPECT_TRUE(peer().fieldIsFirstResponder());
}

TEST_F(UITextFieldTest, ASecretIsShownAsBullets) {
    peer().setText("abc");
    peer().setTextInputTraits({.secure = true});
    EXPECT_EQ(peer().shownText(), "\u2022\u2022\u2022");
    EXPECT_EQ(peer().accessibility().value, "\u2022\u2022\u2022");
    EXPECT_EQ(peer().inspectedProperties().at("text"), PropertyList("\u2022\u2022\u2022"));
    EXPECT_EQ(field->text(), "abc");
}

TEST_F(UITextFieldTest, TellsOfTheEndOfEditing) {
    auto ends = 0;
    peer().setEndHandler([&ends] { ++ends; });
    field->becomeFirstResponder();
    EXPECT_EQ(ends, 0);
    peer().resignFirstResponder();
    EXPECT_EQ(ends, 1);
    field->becomeFirstResponder();
    peer().removeFromSuperview();
    EXPECT_EQ(ends, 2);
}

TEST_F(UITextFieldTest, ReturnEndsEditingWhereItIsToldTo) {
    field->becomeFirstResponder();
    peer().returnPressed();
    EXPECT_TRUE(peer().fieldIsFirstResponder());
    peer().setEndsOnReturn(true);
    auto returns = 0;
    peer().setReturnHandler([&returns] { ++returns; });
    peer().returnPressed();
    EXPECT_FALSE(peer().fieldIsFirstResponder());
    EXPECT_EQ(returns, 1);
}

} // namespace
