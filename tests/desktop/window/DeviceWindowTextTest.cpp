#include "TextWindowFixture.h"
#include "WindowAccessibility.h"
#include "text/UITextFieldPeer.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>

namespace {

class DeviceWindowTextTest : public TextWindowFixture {
protected:
    DeviceWindowTextTest() { WindowAccessibility::install(); }

    void type(const QString& text, Qt::Key key = Qt::Key_unknown, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&shown, &down);
        run();
    }
};

TEST_F(DeviceWindowTextTest, TypesIntoTheFieldThatWasClicked) {
    type("x");
    EXPECT_EQ(field_->text(), "");
    click({60, 160}); // half a unit for a point
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder());
    type("H");
    type("i");
    type(" ", Qt::Key_Space);
    type("\b", Qt::Key_Backspace);
    EXPECT_EQ(field_->text(), "Hi");
    EXPECT_EQ(firstPresses_ + secondPresses_, 0);
}

TEST_F(DeviceWindowTextTest, TabBringsTheKeyboardToAField) {
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder());
    press(Qt::Key_Tab);
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder());
    type("a b", Qt::Key_Space);
    EXPECT_EQ(field_->text(), "a b");
}

TEST_F(DeviceWindowTextTest, AssistiveProgramsBringTheKeyboardToAField) {
    auto* const root = QAccessible::queryAccessibleInterface(&shown);
    ASSERT_NE(root, nullptr);
    auto* const child = root->child(2);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->role(), QAccessible::EditableText);
    EXPECT_TRUE(child->state().editable);
    EXPECT_FALSE(root->child(0)->state().editable);
    child->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder());
    type("x");
    EXPECT_EQ(child->text(QAccessible::Name), "Name");
    EXPECT_EQ(child->text(QAccessible::Value), "x");
}

TEST_F(DeviceWindowTextTest, TheElementThatTabHasGoneToIsPressed) {
    field_->becomeFirstResponder();
    press(Qt::Key_Tab);
    type(" ", Qt::Key_Space);
    EXPECT_EQ(firstPresses_, 1);
    EXPECT_EQ(field_->text(), "");
    type("x");
    EXPECT_EQ(field_->text(), "x");
}

TEST_F(DeviceWindowTextTest, EscapeGoesBackWhileAFieldHasTheKeyboard) {
    field_->becomeFirstResponder();
    press(Qt::Key_Escape);
    EXPECT_EQ(timesBack_, 1);
}

TEST_F(DeviceWindowTextTest, SharesTheDesktopsClipboard) {
    QGuiApplication::clipboard()->setText("shared");
    field_->becomeFirstResponder();
    type({}, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field_->text(), "shared");
    type({}, Qt::Key_A, Qt::ControlModifier);
    type("new");
    type({}, Qt::Key_A, Qt::ControlModifier);
    type({}, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "new");
    EXPECT_EQ(field_->text(), "");
}

} // namespace
