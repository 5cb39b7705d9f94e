#include "DriverFixture.h"
#include "UIKit/UITextField.h"
#include "text/UITextFieldPeer.h"
#include "typing/TextInput.h"

#include <vector>

namespace {

class TextCommandsTest : public DriverFixture {
protected:
    TextCommandsTest() {
        field_->setFrame(CGRectMake(20, 100, 200, 40));
        field_->setPlaceholder("Backup Name");
        window->addSubview(field_);
    }

    Ref<UITextField> field_ = make<UITextField>();
};

TEST_F(TextCommandsTest, RefusesWhereNothingTakesText) {
    for (const auto* const line : {"type hello", "key return", "key backspace"})
        EXPECT_EQ(refusalOf(line), "nothing on the screen takes text") << line;
    EXPECT_EQ(field_->text(), "");
}

TEST_F(TextCommandsTest, TypesIntoWhatWasTapped) {
    static_cast<void>(ask("tap \"Backup Name\""));
    EXPECT_EQ(ask("type My backup \"2\""), QJsonObject());
    EXPECT_EQ(field_->text(), "My backup \"2\"");
    static_cast<void>(ask("key backspace"));
    static_cast<void>(ask("key backspace"));
    EXPECT_EQ(field_->text(), "My backup \"");
    static_cast<void>(ask("key return"));
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*field_).fieldIsFirstResponder());
    EXPECT_EQ(field_->text(), "My backup \"");
}

TEST_F(TextCommandsTest, DeletesWholeCharacters) {
    field_->becomeFirstResponder();
    static_cast<void>(ask("type a👩‍👩‍👧"));
    static_cast<void>(ask("key backspace"));
    EXPECT_EQ(field_->text(), "a");
}

TEST_F(TextCommandsTest, RefusesOtherKeysAndNoText) {
    field_->becomeFirstResponder();
    EXPECT_EQ(refusalOf("key escape"), "a key is return or backspace");
    EXPECT_EQ(refusalOf("key"), "usage: key return|backspace");
    EXPECT_EQ(refusalOf("key return backspace"), "usage: key return|backspace");
    EXPECT_EQ(refusalOf("type"), "usage: type TEXT");
    EXPECT_EQ(field_->text(), "");
}

TEST_F(TextCommandsTest, SettleEndsWhileTheCaretBlinks) {
    field_->becomeFirstResponder();
    static_cast<void>(ask("settle"));
    static_cast<void>(ask("type x"));
    const auto settled = ask("settle");
    EXPECT_EQ(ask("advance 0"), settled);
}

TEST_F(TextCommandsTest, ViewsTellOfTheField) {
    field_->becomeFirstResponder();
    static_cast<void>(ask("type x"));
    const auto view = ask("views UITextField")["views"].toArray().at(0).toObject();
    EXPECT_EQ(view["accessibility"].toObject()["value"], "x");
    EXPECT_EQ(view["properties"].toObject()["text"], "x");
    EXPECT_EQ(view["properties"].toObject()["placeholder"], "Backup Name");
    EXPECT_EQ(view["properties"].toObject()["firstResponder"], true);
    EXPECT_EQ(view["properties"].toObject()["selection"], (QJsonArray{1, 1}));
}

} // namespace
