#include "RowConfirmation.h"

#include "PageFixture.h"
#include "RectGeometry.h"
#include "alerts/UIAlertControllerPeer.h"
#include "screen/Presentations.h"

namespace {

using Texts = std::vector<std::string>;

class RowConfirmationTest : public PageFixture {
protected:
    [[nodiscard]] static std::string question(const std::string& inside) {
        return text("action", "tapped:") + value("confirmation", "<dict>" + inside + "</dict>");
    }

    [[nodiscard]] const Presented& alert() { return *screen.presentations().top(); }

    void answer(const std::string& title) {
        settle();
        const auto actions = alert().actions();
        const auto found = std::ranges::find(actions, title, &Presented::Action::title);
        ASSERT_NE(found, actions.end()) << title;
        Phone::tap({CGRectGetMidX(found->frame), CGRectGetMidY(found->frame)});
        settle();
    }
};

} // namespace

TEST_F(RowConfirmationTest, AsksBeforeItActs) {
    writeList({row("PSButtonCell", "a",
                   question(text("title", "Really?") + text("prompt", "All of it.") + text("okTitle", "Do") +
                            text("cancelTitle", "Leave")) +
                       yes("isDestructive"))});
    show();
    tap("a");
    EXPECT_TRUE(page_->events.empty());
    settle();
    EXPECT_EQ(alert().title(), "Really?");
    EXPECT_EQ(alert().details()->detail, "All of it.");
    ASSERT_EQ(alert().actions().size(), 2U);
    EXPECT_TRUE(alert().actions()[1].destructive);
    answer("Do");
    EXPECT_EQ(page_->events, Texts{"tapped a"});
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(RowConfirmationTest, NothingIsDoneWhenItIsCancelled) {
    writeList(
        {row("PSButtonCell", "a", question(text("title", "Really?")) + text("cancel", "tappedPlainly"))});
    show();
    tap("a");
    answer("Cancel");
    EXPECT_EQ(page_->events, Texts{"tapped"});
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
    EXPECT_EQ(screen.presentations().top(), nullptr);
}

TEST_F(RowConfirmationTest, AConfirmationMayHaveAnActionOfItsOwn) {
    writeList({row("PSButtonCell", "a", question("") + text("confirmationAction", "tappedPlainly"))});
    show();
    tap("a");
    answer("OK");
    EXPECT_EQ(page_->events, Texts{"tapped"});
}

TEST_F(RowConfirmationTest, WhatIsNoQuestionIsNotAsked) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:") + text("confirmation", "Really?"))});
    show();
    tap("a");
    EXPECT_EQ(screen.presentations().top(), nullptr);
    EXPECT_EQ(page_->events, Texts{"tapped a"});
}
