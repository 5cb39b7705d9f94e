#include "WindowAccessibility.h"

#include "WindowFixture.h"
#include "controls/UISliderPeer.h"
#include "views/UIViewPeer.h"

namespace {

class WindowAccessibilityTest : public WindowFixture {
protected:
    WindowAccessibilityTest() { WindowAccessibility::install(); }

    [[nodiscard]] QAccessibleInterface& told() { return *QAccessible::queryAccessibleInterface(&shown); }
};

TEST_F(WindowAccessibilityTest, TellsOfTheElementsInOrder) {
    ASSERT_EQ(told().childCount(), 2);
    EXPECT_EQ(told().child(0)->text(QAccessible::Name), "First");
    EXPECT_EQ(told().child(1)->text(QAccessible::Name), "Second");
    EXPECT_EQ(told().child(1)->role(), QAccessible::Button);
    EXPECT_EQ(told().indexOfChild(told().child(1)), 1);
    EXPECT_EQ(told().child(2), nullptr);
}

TEST_F(WindowAccessibilityTest, TellsWhereAnElementIs) {
    EXPECT_EQ(told().child(0)->rect(), QRect(shown.mapToGlobal(QPoint(10, 50)), QSize(100, 22)));
}

TEST_F(WindowAccessibilityTest, PressesAnElement) {
    told().child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(secondPresses_, 1);
}

TEST_F(WindowAccessibilityTest, BringsTheKeyboardToAnElement) {
    auto* const second = told().child(1);
    second->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(shown.focusedView(), second_);
    EXPECT_TRUE(second->state().focused);
    EXPECT_EQ(told().focusChild(), second);
}

TEST_F(WindowAccessibilityTest, TellsOfADisabledControl) {
    EXPECT_FALSE(told().child(0)->state().disabled);
    peerOf<UIControlPeer>(*first_).setEnabled(false);
    EXPECT_TRUE(told().child(0)->state().disabled);
}

TEST_F(WindowAccessibilityTest, ASliderMayBeSetHigherAndLower) {
    using Actions = QAccessibleActionInterface;
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(20, 300, 200, 34));
    window->addSubview(slider);
    layOut();
    const auto& peer = peerOf<UISliderPeer>(*slider);
    const QStringList usual{Actions::pressAction(), Actions::setFocusAction()};
    EXPECT_EQ(told().child(0)->actionInterface()->actionNames(), usual);
    ASSERT_EQ(told().childCount(), 3);
    auto& actions = *told().child(2)->actionInterface();
    EXPECT_EQ(actions.actionNames(),
              usual + QStringList({Actions::increaseAction(), Actions::decreaseAction()}));
    actions.doAction(Actions::increaseAction());
    EXPECT_NEAR(peer.value(), 0.1, 1e-9);
    actions.doAction(Actions::decreaseAction());
    EXPECT_EQ(peer.value(), 0);
}

TEST_F(WindowAccessibilityTest, LosesAnElementThatIsGone) {
    auto* const first = told().child(0);
    EXPECT_TRUE(first->isValid());
    first_->peer().removeFromSuperview();
    EXPECT_FALSE(first->isValid());
    EXPECT_EQ(told().childCount(), 1);
    EXPECT_EQ(told().child(0)->text(QAccessible::Name), "Second");
}

TEST_F(WindowAccessibilityTest, AValueThatIsNoYesOrNoDescribesTheElement) {
    first_->peer().setAccessibility({.label = "First", .value = "low", .isElement = true});
    EXPECT_EQ(told().child(0)->text(QAccessible::Description), "low");
    first_->peer().setAccessibility(
        {.label = "First", .value = "1", .role = AccessibilityRole::Choice, .isElement = true});
    EXPECT_EQ(told().child(0)->text(QAccessible::Description), "");
    EXPECT_TRUE(told().child(0)->state().checked);
}

} // namespace
