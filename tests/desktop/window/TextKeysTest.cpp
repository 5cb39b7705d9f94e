#include "TextKeys.h"

#include "typing/Clipboard.h"
#include "typing/TextInput.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

namespace {

/// A text without a view.
class BareText final : public TextInput {
public:
    [[nodiscard]] UIView& inputView() const override { std::abort(); }

    [[nodiscard]] const EditedText& editedText() const override { return text_; }

    [[nodiscard]] TextInputTraits textInputTraits() const override { return traits; }

    void edit(const std::function<void(EditedText&)>& change) override { change(text_); }

    void returnPressed() override { text_.endComposing(); }

    [[nodiscard]] CGRect caretOnScreen() const override { return {}; }

    void firstResponderDidChange(bool /*isFirstResponder*/) override {}

    void setCaretLit(bool /*lit*/) override {}

    [[nodiscard]] std::string shown() const {
        auto string = text_.string();
        const auto [begin, end] = text_.selection();
        if (begin == end)
            return string.insert(begin, '|').toStdString();
        return string.insert(end, ']').insert(begin, '[').toStdString();
    }

    TextInputTraits traits;

private:
    EditedText text_;
};

struct Press {
    std::string name;
    int key;
    Qt::KeyboardModifiers modifiers;
    QString text;
    std::string shown; ///< what becomes of "one two thr|ee"
};

void PrintTo(const Press& press, std::ostream* out) {
    *out << press.name;
}

class TextKeysTest : public testing::TestWithParam<Press> {
protected:
    TextKeysTest() {
        input_.edit([](EditedText& text) {
            text.setString("one two three");
            text.placeCaret(11);
        });
        clipboard_.setText("old");
    }

    bool press(int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
        return typeKey(QKeyEvent(QEvent::KeyPress, key, modifiers, text), input_, clipboard_);
    }

    BareText input_;
    Clipboard clipboard_;
};

TEST_P(TextKeysTest, DoesWhatTheKeyIsFor) {
    EXPECT_TRUE(press(GetParam().key, GetParam().modifiers, GetParam().text));
    EXPECT_EQ(input_.shown(), GetParam().shown);
}

const std::vector<Press> presses{
    {"letter", Qt::Key_X, {}, "x", "one two thrx|ee"},
    {"capital", Qt::Key_X, Qt::ShiftModifier, "X", "one two thrX|ee"},
    {"space", Qt::Key_Space, {}, " ", "one two thr |ee"},
    {"umlaut", Qt::Key_Udiaeresis, {}, "ü", "one two thrü|ee"},
    {"level3", Qt::Key_E, Qt::GroupSwitchModifier, "€", "one two thr€|ee"},
    {"keypad", Qt::Key_5, Qt::KeypadModifier, "5", "one two thr5|ee"},
    {"left", Qt::Key_Left, {}, {}, "one two th|ree"},
    {"right", Qt::Key_Right, {}, {}, "one two thre|e"},
    {"wordLeft", Qt::Key_Left, Qt::ControlModifier, {}, "one two |three"},
    {"wordRight", Qt::Key_Right, Qt::ControlModifier, {}, "one two three|"},
    {"home", Qt::Key_Home, {}, {}, "|one two three"},
    {"end", Qt::Key_End, {}, {}, "one two three|"},
    {"up", Qt::Key_Up, {}, {}, "|one two three"},
    {"down", Qt::Key_Down, {}, {}, "one two three|"},
    {"selectLeft", Qt::Key_Left, Qt::ShiftModifier, {}, "one two th[r]ee"},
    {"selectRight", Qt::Key_Right, Qt::ShiftModifier, {}, "one two thr[e]e"},
    {"selectWordLeft", Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier, {}, "one two [thr]ee"},
    {"selectWordRight", Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier, {}, "one two thr[ee]"},
    {"selectHome", Qt::Key_Home, Qt::ShiftModifier, {}, "[one two thr]ee"},
    {"selectEnd", Qt::Key_End, Qt::ShiftModifier, {}, "one two thr[ee]"},
    {"selectAll", Qt::Key_A, Qt::ControlModifier, {}, "[one two three]"},
    {"backspace", Qt::Key_Backspace, {}, "\b", "one two th|ee"},
    {"backspaceWord", Qt::Key_Backspace, Qt::ControlModifier, {}, "one two |ee"},
    {"delete", Qt::Key_Delete, {}, "\x7F", "one two thr|e"},
    {"deleteWord", Qt::Key_Delete, Qt::ControlModifier, {}, "one two thr|"},
    {"return", Qt::Key_Return, {}, "\r", "one two thr|ee"},
    {"enter", Qt::Key_Enter, Qt::KeypadModifier, "\r", "one two thr|ee"},
    {"paste", Qt::Key_V, Qt::ControlModifier, {}, "one two throld|ee"},
    {"copyNothing", Qt::Key_C, Qt::ControlModifier, {}, "one two thr|ee"},
    {"cutNothing", Qt::Key_X, Qt::ControlModifier, {}, "one two thr|ee"},
};

INSTANTIATE_TEST_SUITE_P(Keys, TextKeysTest, testing::ValuesIn(presses),
                         [](const auto& press) { return press.param.name; });

TEST_F(TextKeysTest, LeavesOtherKeysAlone) {
    EXPECT_FALSE(press(Qt::Key_F5, {}));
    EXPECT_FALSE(press(Qt::Key_Escape, {}, "\x1b")) << "whose text is no character that is written";
    EXPECT_FALSE(press(Qt::Key_Shift, Qt::ShiftModifier));
    EXPECT_FALSE(press(Qt::Key_Q, Qt::ControlModifier, "\x11"));
    EXPECT_FALSE(press(Qt::Key_Q, Qt::AltModifier, "q"));
    EXPECT_FALSE(press(Qt::Key_Q, Qt::MetaModifier, "q"));
    EXPECT_EQ(input_.shown(), "one two thr|ee");
}

TEST_F(TextKeysTest, CutsCopiesAndPastes) {
    input_.edit([](EditedText& text) { text.selectWordAt(5); });
    EXPECT_TRUE(press(Qt::Key_C, Qt::ControlModifier));
    EXPECT_EQ(clipboard_.text(), "two");
    EXPECT_EQ(input_.shown(), "one [two] three");
    EXPECT_TRUE(press(Qt::Key_X, Qt::ControlModifier));
    EXPECT_EQ(input_.shown(), "one | three");
    EXPECT_TRUE(press(Qt::Key_V, Qt::ControlModifier));
    EXPECT_TRUE(press(Qt::Key_V, Qt::ControlModifier));
    EXPECT_EQ(input_.shown(), "one twotwo| three");
}

TEST_F(TextKeysTest, KeepsTheClipboardWhenNothingIsSelected) {
    EXPECT_TRUE(press(Qt::Key_C, Qt::ControlModifier));
    EXPECT_TRUE(press(Qt::Key_X, Qt::ControlModifier));
    EXPECT_EQ(clipboard_.text(), "old");
}

TEST_F(TextKeysTest, ASecretIsNotCopied) {
    input_.traits.secure = true;
    EXPECT_TRUE(press(Qt::Key_A, Qt::ControlModifier));
    EXPECT_TRUE(press(Qt::Key_C, Qt::ControlModifier));
    EXPECT_TRUE(press(Qt::Key_X, Qt::ControlModifier));
    EXPECT_EQ(clipboard_.text(), "old");
    EXPECT_EQ(input_.shown(), "|");
}

TEST_F(TextKeysTest, PastesLinesAsOne) {
    clipboard_.setText("a\nb\r\nc");
    EXPECT_TRUE(press(Qt::Key_V, Qt::ControlModifier));
    EXPECT_EQ(input_.shown(), "one two thra b c|ee");
}

TEST_F(TextKeysTest, GoesTheOtherWayInTextFromTheRight) {
    input_.edit([](EditedText& text) { text.setString("שלום"); });
    EXPECT_TRUE(press(Qt::Key_Left, {}));
    EXPECT_EQ(input_.editedText().caret(), 4);
    EXPECT_TRUE(press(Qt::Key_Right, {}));
    EXPECT_EQ(input_.editedText().caret(), 3);
    EXPECT_TRUE(press(Qt::Key_Home, {}));
    EXPECT_EQ(input_.editedText().caret(), 0);
}

} // namespace
