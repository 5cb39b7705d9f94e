#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopFont.h"
#include "RectGeometry.h"
#include "accessibility/AccessibilityElement.h"
#include "alerts/AlertView.h"
#include "alerts/UIAlertControllerPeer.h"
#include "presentation/PresentationFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UILabelPeer.h"

namespace {

using enum UIAlertActionStyle;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class UIAlertControllerTest : public PresentationFixture {
protected:
    using PresentationFixture::PresentationFixture;

    Ref<UIAlertAction> action(const std::string& title, UIAlertActionStyle style = Default) {
        return UIAlertAction::actionWithTitle(
            title, style, [this, title](UIAlertAction&) { log.push_back("chose " + title); });
    }

    Ref<UIAlertController> alert(const std::vector<Ref<UIAlertAction>>& actions,
                                 const std::optional<std::string>& title = "Reset Settings",
                                 const std::optional<std::string>& message = "Are you sure?") {
        auto alert =
            UIAlertController::alertControllerWithTitle(title, message, UIAlertControllerStyle::Alert);
        for (const auto& one : actions)
            alert->addAction(one);
        return alert;
    }

    Ref<UIAlertController> usual() { return alert({action("Reset", Destructive), action("Cancel", Cancel)}); }

    /// Titled by their numbers from 1 on, and one that cancels.
    Ref<UIAlertController> alertOfButtons(int count) {
        std::vector<Ref<UIAlertAction>> actions;
        for (auto number = 1; number <= count; ++number)
            actions.push_back(action(std::to_string(number)));
        actions.push_back(action("Cancel", Cancel));
        return alert(actions);
    }

    static CGPoint middle(const CGRect& rect) { return {CGRectGetMidX(rect), CGRectGetMidY(rect)}; }

    CGPoint button(std::size_t index) { return middle(top()->actions().at(index).frame); }
};

class PadAlertTest : public UIAlertControllerTest {
protected:
    PadAlertTest() : UIAlertControllerTest(Screen::Options{.idiom = Idiom::Pad, .scale = 2}) {}
};

const UILabel& labelOf(const AlertButtonView& button) {
    return dynamic_cast<const UILabel&>(*button.peer().subviews().back());
}

AlertView& viewOf(const Ref<UIAlertController>& alert) {
    return dynamic_cast<AlertView&>(alert->view());
}

} // namespace

TEST_F(UIAlertControllerTest, tellsOfItself) {
    present(usual());
    EXPECT_EQ(top()->kind(), "alert");
    EXPECT_EQ(top()->title(), "Reset Settings");
    EXPECT_EQ(top()->details()->controllerClass, "UIAlertController");
    EXPECT_EQ(top()->details()->detail, "Are you sure?");
    EXPECT_EQ(top()->details()->style, "alert");
    EXPECT_FALSE(top()->details()->swipeDismissable);
    const auto actions = top()->actions();
    ASSERT_EQ(actions.size(), 2U);
    EXPECT_EQ(actions[0].title, "Cancel");
    EXPECT_TRUE(actions[0].cancels);
    EXPECT_EQ(actions[1].title, "Reset");
    EXPECT_TRUE(actions[1].destructive);
    EXPECT_FALSE(actions[1].cancels);
}

TEST_F(UIAlertControllerTest, tellsAssistiveProgramsOfItsTextsAndButtons) {
    present(usual());
    std::vector<std::string> labels;
    for (const auto& element : AccessibilityElement::allIn(top()->shownView()))
        labels.push_back(element.label);
    EXPECT_THAT(labels, ElementsAre("Reset Settings", "Are you sure?", "Cancel", "Reset"));
}

TEST_F(UIAlertControllerTest, isInTheMiddleOfTheScreenWithItsButtonsAtItsEnd) {
    present(usual());
    const auto frame = screenFrame(top()->shownView());
    EXPECT_EQ(frame.size.width, 270);
    EXPECT_EQ(frame.origin.x, 60);
    EXPECT_NEAR(CGRectGetMidY(frame), 422, 0.5);
    EXPECT_EQ(top()->actions()[0].frame.origin.x, 60);
    EXPECT_EQ(top()->actions()[1].frame.origin.x, 195);
    EXPECT_NEAR(CGRectGetMaxY(top()->actions()[0].frame), CGRectGetMaxY(frame), 1e-6);
}

TEST_F(UIAlertControllerTest, emphasisesWhatCancelsAndNothingElse) {
    const auto shown = alert({action("OK"), action("Erase", Destructive), action("Cancel", Cancel)});
    present(shown);
    screen.layoutIfNeeded();
    std::vector<FontWeight> weights;
    for (const auto& one : viewOf(shown).buttons())
        weights.push_back(peerOf<UILabelPeer>(labelOf(*one)).fontStyle().weight);
    EXPECT_THAT(weights, ElementsAre(FontWeight::Regular, FontWeight::Regular, FontWeight::Semibold));
    const auto lone = alert({action("OK")});
    EXPECT_EQ(peerOf<UILabelPeer>(labelOf(*viewOf(lone).buttons()[0])).fontStyle().weight,
              FontWeight::Regular);
}

TEST_F(UIAlertControllerTest, colorsButtonsByTheTintAndWhatDestroysRed) {
    const auto shown = usual();
    present(shown);
    const auto color = [](const AlertButtonView& one) {
        return DesktopColor::resolve(peerOf<UILabelPeer>(labelOf(one)).textColor(), one.peer().traits());
    };
    EXPECT_EQ(color(*viewOf(shown).buttons()[0]), systemColor(SystemColor::Blue, Appearance::Light));
    EXPECT_EQ(color(*viewOf(shown).buttons()[1]), systemColor(SystemColor::Red, Appearance::Light));
}

TEST_F(UIAlertControllerTest, theHandlerRunsWhenTheAlertIsGone) {
    present(usual(), true);
    settle();
    takeLog();
    tap(button(1));
    EXPECT_EQ(top(), nullptr);
    advance(milliseconds(249));
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_NE(navigation->presentedViewController(), nullptr);
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("chose Reset"));
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
}

TEST_F(UIAlertControllerTest, theHandlerMayPresentAgain) {
    const auto next = alert({action("OK")}, "Done");
    present(
        alert({UIAlertAction::actionWithTitle("Go", Default, [&](UIAlertAction&) { present(next, true); })}));
    tap(button(0));
    settle();
    EXPECT_EQ(navigation->presentedViewController(), next);
}

TEST_F(UIAlertControllerTest, aButtonWithoutAHandlerTakesItAway) {
    present(alert({UIAlertAction::actionWithTitle("OK", Default, {})}));
    tap(button(0));
    settle();
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
}

TEST_F(UIAlertControllerTest, dismissingByCodeRunsNoHandler) {
    present(usual());
    dismissBy(*navigation, true);
    settle();
    EXPECT_EQ(log.back(), "dismissed");
}

TEST_F(UIAlertControllerTest, aFingerSlidesFromButtonToButtonAndChoosesWhereItIsLifted) {
    present(usual());
    takeLog();
    finger.touch(TouchPhase::Began, button(1));
    finger.touch(TouchPhase::Moved, button(0));
    const auto cancel = button(0);
    up(cancel);
    settle();
    EXPECT_THAT(log, testing::Contains("chose Cancel"));
    present(usual());
    takeLog();
    finger.touch(TouchPhase::Began, middle(screenFrame(top()->shownView())));
    finger.touch(TouchPhase::Moved, button(1));
    up(button(1));
    settle();
    EXPECT_THAT(log, testing::Contains("chose Reset"));
}

TEST_F(UIAlertControllerTest, touchesElsewhereChooseNothing) {
    present(usual());
    takeLog();
    const auto frame = screenFrame(top()->shownView());
    for (const auto place : {CGPoint{20, 100}, CGPoint{195, 800}, CGPoint{195, frame.origin.y + 10}})
        tap(place);
    finger.touch(TouchPhase::Began, button(0));
    finger.touch(TouchPhase::Moved, {20, 100});
    up({20, 100});
    settle();
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_NE(top(), nullptr);
}

TEST_F(UIAlertControllerTest, aSecondChoiceWhileItLeavesCountsNot) {
    present(usual());
    takeLog();
    const auto cancel = button(0);
    const auto reset = button(1);
    auto* const presented = top();
    tap(reset);
    tap(cancel);
    presented->dismissPresented();
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("chose Reset"));
}

TEST_F(UIAlertControllerTest, dismissedFromOutsideItChoosesWhatCancels) {
    present(alert({action("OK")}));
    top()->dismissPresented();
    settle();
    EXPECT_NE(top(), nullptr);
    dismissBy(*navigation, false);
    present(usual());
    top()->dismissPresented();
    settle();
    EXPECT_EQ(log.back(), "chose Cancel");
}

TEST_F(UIAlertControllerTest, aSecondButtonThatCancelsIsRefused) {
    const auto shown = alert({action("No", Cancel), action("Never", Cancel), action("OK")});
    EXPECT_EQ(device.log().take().size(), 1U);
    present(shown);
    EXPECT_EQ(top()->actions().size(), 2U);
}

TEST_F(UIAlertControllerTest, aButtonThatIsAddedLaterIsShown) {
    const auto shown = alert({action("OK")});
    present(shown);
    shown->addAction(action("More"));
    screen.layoutIfNeeded();
    ASSERT_EQ(top()->actions().size(), 2U);
    EXPECT_EQ(top()->actions()[1].frame.size.width, 135);
}

TEST_F(UIAlertControllerTest, fadesInFromALargerSizeAndOutAtItsOwn) {
    present(usual(), true);
    const auto& layer = top()->shownView().layer().peer();
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Opacity)[0], 0);
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Transform)[0], 1.2);
    settle();
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Opacity)[0], 1);
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Transform)[0], 1);
    tap(button(0));
    advance(milliseconds(125));
    EXPECT_NEAR(layer.shownValue(LayerProperty::Opacity)[0], 0.5, 1e-6);
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Transform)[0], 1);
}

TEST_F(UIAlertControllerTest, isTheSameWhenItIsPresentedAgain) {
    const auto shown = usual();
    present(shown);
    const auto frame = screenFrame(shown->view());
    for (auto round = 0; round < 2; ++round) {
        dismissBy(*navigation, true);
        settle();
        present(shown, true);
        settle();
        EXPECT_EQ(screenFrame(shown->view()), frame);
        EXPECT_DOUBLE_EQ(shown->view().layer().peer().number(LayerProperty::Opacity), 1);
        EXPECT_FALSE(shown->view().peer().isHidden());
    }
}

TEST_F(UIAlertControllerTest, longTextsScrollWithinTheScreen) {
    std::string message;
    for (auto line = 0; line < 90; ++line)
        message += "A message that goes on and on.\n";
    present(alert({action("OK"), action("Cancel", Cancel)}, "Long", message));
    const auto frame = screenFrame(top()->shownView());
    EXPECT_GE(frame.origin.y, 47 + 20);
    EXPECT_LE(CGRectGetMaxY(frame), 844 - 34 - 20);
    EXPECT_NEAR(CGRectGetMaxY(top()->actions()[0].frame), CGRectGetMaxY(frame), 1e-6);
    const auto& texts = dynamic_cast<UIScrollView&>(*top()->shownView().peer().subviews()[1]);
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(texts).contentOffset().y, 0);
    drag({195, 500}, {195, 300});
    up({195, 300});
    settle();
    EXPECT_GT(peerOf<UIScrollViewPeer>(texts).contentOffset().y, 100);
    EXPECT_NE(top(), nullptr);
}

TEST_F(UIAlertControllerTest, veryManyButtonsScrollBelowTheTextsOnceTheyHaveNoRoom) {
    present(alertOfButtons(40));
    const auto frame = screenFrame(top()->shownView());
    EXPECT_GE(frame.origin.y, 47 + 20);
    EXPECT_LE(CGRectGetMaxY(frame), 844 - 34 - 20);
    EXPECT_GT(top()->actions().back().frame.origin.y, CGRectGetMaxY(frame));
    const auto firstTop = top()->actions()[0].frame.origin.y;
    drag({195, 600}, {195, 300});
    EXPECT_LT(top()->actions()[0].frame.origin.y, firstTop - 200);
    up({195, 300});
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("presented Reset Settings"))
        << "a finger that scrolls chooses nothing";
    ASSERT_NE(top(), nullptr);
    for (auto times = 0; times < 8; ++times) {
        drag({195, 700}, {195, 300});
        up({195, 300});
        settle();
    }
    EXPECT_NEAR(CGRectGetMaxY(top()->actions().back().frame), CGRectGetMaxY(frame), 1e-6);
    tap(middle(top()->actions()[38].frame));
    settle();
    EXPECT_THAT(log, testing::Contains("chose 39"));
}

TEST_F(UIAlertControllerTest, buttonsThatAreScrolledAwayAreNotBehindTheTexts) {
    present(alertOfButtons(40));
    drag({195, 600}, {195, 400});
    up({195, 400});
    settle();
    static_cast<void>(takeLog());
    const auto frame = screenFrame(top()->shownView());
    tap(CGPoint{195, frame.origin.y + 20});
    settle();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_NE(top(), nullptr);
}

TEST_F(UIAlertControllerTest, longTextsAndVeryManyButtonsShareTheRoom) {
    std::string message;
    for (auto line = 0; line < 90; ++line)
        message += "A message that goes on and on.\n";
    std::vector<Ref<UIAlertAction>> actions;
    for (auto number = 1; number <= 40; ++number)
        actions.push_back(action(std::to_string(number)));
    present(alert(actions, "Long", message));
    const auto frame = screenFrame(top()->shownView());
    EXPECT_NEAR(top()->actions()[0].frame.origin.y, CGRectGetMidY(frame), 1e-6);
}

TEST_F(UIAlertControllerTest, staysAboveTheKeyboard) {
    present(usual());
    screen.setKeyboardHeight(336);
    EXPECT_NEAR(CGRectGetMidY(screenFrame(top()->shownView())), (844 - 336) / 2.0, 0.5);
    screen.setKeyboardHeight(0);
    EXPECT_NEAR(CGRectGetMidY(screenFrame(top()->shownView())), 422, 0.5);
}

TEST_F(UIAlertControllerTest, isPresentedAboveASheetWhichStays) {
    const auto sheet = page("B");
    present(sheet);
    presentOn(*sheet, usual());
    EXPECT_EQ(shownFrame(sheetOf(sheet).shownView()), CGRectMake(0, 57, 390, 787));
    EXPECT_EQ(screen.presentations().all().size(), 2U);
    tap(button(1));
    settle();
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    EXPECT_EQ(log.back(), "chose Reset");
}

TEST_F(UIAlertControllerTest, aSheetAboveItMovesNothingAside) {
    const auto shown = usual();
    present(shown);
    const auto frame = shownFrame(shown->view());
    presentOn(*shown, page("B"));
    EXPECT_EQ(shownFrame(shown->view()), frame);
}

TEST_F(PadAlertTest, isInTheMiddleOfTheTablet) {
    present(usual());
    const auto frame = screenFrame(top()->shownView());
    EXPECT_EQ(frame.origin.x, 275);
    EXPECT_NEAR(CGRectGetMidY(frame), 590, 0.5);
}

TEST_F(UIAlertControllerTest, leavesNothingAliveWhateverItsHandlersHold) {
    Weak<UIViewController> watched;
    {
        const auto shown = alert({});
        const auto closing = UIAlertAction::actionWithTitle(
            "OK", Default, [weak = Weak<UIViewController>(shown)](UIAlertAction&) {});
        shown->addAction(closing);
        watched = Weak<UIViewController>(shown);
        present(shown);
    }
    tap(button(0));
    settle();
    EXPECT_EQ(watched.strong(), nullptr);
}

TEST_F(UIAlertControllerTest, makesAButtonsTitleSmallerBeforeItIsCutShort) {
    const auto isCutShort = [this](const std::string& title) {
        const auto shown = alert({action(title)});
        present(shown);
        const auto cut = peerOf<UILabelPeer>(labelOf(*viewOf(shown).buttons().front())).isTruncated();
        dismissBy(*navigation, false);
        settle();
        return cut;
    };
    EXPECT_FALSE(isCutShort("Reset all of the settings of Corvex")) << "somewhat too long";
    EXPECT_TRUE(isCutShort("Reset all of the settings of Corvex and all pictures of it, too"));
}

TEST_F(UIAlertControllerTest, linesOfAPixelAreBetweenItsButtons) {
    const auto shown = usual();
    present(shown);
    const auto pixel = 1 / screen.traits().displayScale;
    const auto lines = [&](std::size_t index) {
        std::vector<CGRect> frames;
        const auto& button = *viewOf(shown).buttons().at(index);
        for (const auto& view : button.peer().subviews()) {
            const auto& size = view->bounds().size;
            if (!view->peer().isHidden() && std::min(size.width, size.height) < 1)
                frames.push_back(view->frame());
        }
        return frames;
    };
    const auto above = CGRectMake(0, 0, 135, pixel);
    EXPECT_THAT(lines(0), ElementsAre(above));
    const auto second = lines(1);
    ASSERT_EQ(second.size(), 2U);
    EXPECT_EQ(second[0], above);
    EXPECT_EQ(second[1].origin.x, 0);
    EXPECT_NEAR(second[1].size.width, pixel, 1e-9);
    EXPECT_NEAR(second[1].size.height, 44, 1e-9);
}
