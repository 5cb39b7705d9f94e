#include "InputMethod.h"

#include "TextWindowFixture.h"
#include "text/UITextFieldPeer.h"
#include "typing/TextInput.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

namespace {

class InputMethodTest : public TextWindowFixture {
protected:
    InputMethodTest() {
        peerOf<UITextFieldPeer>(*field_).setText("one two");
        field_->becomeFirstResponder();
    }

    [[nodiscard]] TextInput& input() { return *screen.firstResponder().input(); }

    void send(const QString& preedit, const QString& commit = {}, int from = 0, int length = 0) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit, from, length);
        QCoreApplication::sendEvent(&shown, &event);
        EXPECT_TRUE(event.isAccepted());
    }

    QVariant ask(Qt::InputMethodQuery query) {
        QInputMethodQueryEvent event(query);
        QCoreApplication::sendEvent(&shown, &event);
        return event.value(query);
    }
};

TEST_F(InputMethodTest, ShowsWhatIsComposedAndPutsInWhatIsCommitted) {
    send("k");
    EXPECT_EQ(field_->text(), "one twok");
    send("kan");
    EXPECT_EQ(field_->text(), "one twokan");
    EXPECT_EQ(input().editedText().composed(), (EditedText::Range{7, 10}));
    send("", "漢");
    EXPECT_EQ(field_->text(), "one two漢");
    EXPECT_TRUE(input().editedText().composed().isEmpty());
}

TEST_F(InputMethodTest, TakesBackWhatIsComposed) {
    send("kan");
    send("");
    EXPECT_EQ(field_->text(), "one two");
}

TEST_F(InputMethodTest, CommitsAndGoesOnComposing) {
    send("ka");
    send("n", "か");
    EXPECT_EQ(field_->text(), "one twoかn");
    EXPECT_EQ(input().editedText().composed(), (EditedText::Range{8, 9}));
}

TEST_F(InputMethodTest, ReplacesTextAroundTheCaret) {
    send("", "three", -3, 3);
    EXPECT_EQ(field_->text(), "one three");
    send("", "", -6, 6);
    EXPECT_EQ(field_->text(), "one");
}

TEST_F(InputMethodTest, TakesThePlaceOfTheSelection) {
    input().edit([](EditedText& text) { text.selectAll(); });
    send("x");
    EXPECT_EQ(field_->text(), "x");
}

TEST_F(InputMethodTest, LeavesTheSelectionForAnEmptyEvent) {
    input().edit([](EditedText& text) { text.selectAll(); });
    send("");
    EXPECT_EQ(field_->text(), "one two");
    EXPECT_EQ(input().editedText().selectedText(), "one two");
}

TEST_F(InputMethodTest, PutsTheCaretWhereItIsInWhatIsComposed) {
    QInputMethodEvent event("kan", {{QInputMethodEvent::Cursor, 1, 1, {}}});
    QCoreApplication::sendEvent(&shown, &event);
    EXPECT_EQ(input().editedText().caret(), 8);
}

TEST_F(InputMethodTest, AnswersWithoutWhatIsComposed) {
    EXPECT_EQ(ask(Qt::ImEnabled), true);
    EXPECT_EQ(ask(Qt::ImSurroundingText), "one two");
    EXPECT_EQ(ask(Qt::ImCursorPosition), 7);
    send("kan");
    EXPECT_EQ(ask(Qt::ImSurroundingText), "one two");
    EXPECT_EQ(ask(Qt::ImCursorPosition), 7);
    EXPECT_EQ(ask(Qt::ImAnchorPosition), 7);
}

TEST_F(InputMethodTest, TellsOfTheSelection) {
    input().edit([](EditedText& text) { text.selectWordAt(5); });
    EXPECT_EQ(ask(Qt::ImCurrentSelection), "two");
    EXPECT_EQ(ask(Qt::ImCursorPosition), 7);
    EXPECT_EQ(ask(Qt::ImAnchorPosition), 4);
}

TEST_F(InputMethodTest, TellsWhereTheCaretIsInTheWindow) {
    const auto caret = ask(Qt::ImCursorRectangle).toRectF();
    const auto field = shown.placement().toWindow(CGRectMake(20, 300, 200, 40));
    EXPECT_TRUE(field.contains(caret));
    input().edit([](EditedText& text) { text.placeCaret(0); });
    EXPECT_LT(ask(Qt::ImCursorRectangle).toRectF().left(), caret.left());
}

TEST_F(InputMethodTest, TellsWhenNobodyTakesText) {
    peerOf<UITextFieldPeer>(*field_).resignFirstResponder();
    EXPECT_EQ(ask(Qt::ImEnabled), false);
    EXPECT_FALSE(ask(Qt::ImSurroundingText).isValid());
    QInputMethodEvent event("k", {});
    QCoreApplication::sendEvent(&shown, &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_EQ(field_->text(), "one two");
}

} // namespace

TEST_F(InputMethodTest, IsToldWhatAFieldIsFor) {
    const auto hintsFor = [this](const TextInputTraits& traits) {
        peerOf<UITextFieldPeer>(*field_).setTextInputTraits(traits);
        return Qt::InputMethodHints::fromInt(ask(Qt::ImHints).toUInt());
    };
    using enum TextInputTraits::Keys;
    using enum TextInputTraits::Capitals;
    EXPECT_EQ(hintsFor({.keys = Letters, .capitals = Sentences, .secure = false}), Qt::ImhNone);
    EXPECT_EQ(hintsFor({.keys = Letters, .capitals = None, .secure = false}), Qt::ImhNoAutoUppercase);
    EXPECT_EQ(hintsFor({.keys = Numbers, .capitals = Words, .secure = false}), Qt::ImhPreferNumbers);
    EXPECT_EQ(hintsFor({.keys = Letters, .capitals = Words, .secure = true}),
              Qt::ImhHiddenText | Qt::ImhSensitiveData)
        << "so that it is neither shown nor learned";
}
