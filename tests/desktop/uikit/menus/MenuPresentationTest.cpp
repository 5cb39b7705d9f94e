#include "CALayerPeer.h"
#include "DesktopImage.h"
#include "RectGeometry.h"
#include "accessibility/AccessibilityElement.h"
#include "menus/MenuView.h"
#include "navigation/NavigationFixture.h"
#include "screen/Compositor.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

CGPoint middleOf(const CGRect& rect) {
    return {CGRectGetMidX(rect), CGRectGetMidY(rect)};
}

class MenuPresentationTest : public NavigationFixture {
protected:
    MenuPresentationTest() {
        page->navigationItem().setRightBarButtonItems({button});
        show({page});
    }

    Ref<DesktopAction> action(const std::string& title,
                              UIMenuElementAttributes attributes = UIMenuElementAttributes::None) {
        auto action = UIAction::actionWithTitle(title, DesktopImage::symbol("gear", 17), std::nullopt,
                                                [this, title](UIAction&) { chosen.push_back(title); });
        action->setAttributes(attributes);
        return dynamicCast<DesktopAction>(action);
    }

    /// Opens one of that many rows, titled by their numbers from 1 on.
    void openMenuOf(int count) {
        std::vector<Ref<UIAction>> actions;
        for (auto number = 1; number <= count; ++number)
            actions.emplace_back(action(std::to_string(number)));
        page->navigationItem().setRightBarButtonItems(
            {UIBarButtonItem::initWithImage(nullptr, UIMenu::menuWithTitle("Numbers", actions))});
        settle();
        tap(gear());
        settle();
    }

    Presented* menu() { return screen.presentations().top(); }

    UIView& gear() { return *content().rightButtons().at(0); }

    std::vector<std::string> chosen;
    const Ref<LoggedPage> page = this->NavigationFixture::page("A");
    const Ref<UIBarButtonItem> button = UIBarButtonItem::initWithImage(
        UIImage::systemImageNamed("gear"),
        UIMenu::menuWithTitle("", {action("Apply"),
                                   action("Reset Settings", UIMenuElementAttributes::Destructive),
                                   action("Never", UIMenuElementAttributes::Disabled)}));
};

} // namespace

TEST_F(MenuPresentationTest, opensWhenTheFingerComesDownOnTheButtonAndStaysWhenItIsLifted) {
    EXPECT_EQ(menu(), nullptr);
    finger.touch(TouchPhase::Began, middleOf(screenFrame(gear())));
    ASSERT_NE(menu(), nullptr);
    finger.touch(TouchPhase::Ended, middleOf(screenFrame(gear())));
    settle();
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->kind(), "menu");
    EXPECT_EQ(menu()->title(), "");
    EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(MenuPresentationTest, standsOutFromABlackPage) {
    screen.setStyle(UserInterfaceStyle::Dark);
    window->setBackgroundColor(UIColor::blackColor());
    tap(gear());
    settle();
    ASSERT_NE(menu(), nullptr);
    const auto panel = screenFrame(menu()->shownView());
    Compositor compositor(screen);
    const auto scale = screen.traits().displayScale;
    const auto gray = [&](double x, double y) {
        return qGray(compositor.render().pixel(static_cast<int>(x * scale), static_cast<int>(y * scale)));
    };
    EXPECT_EQ(gray(panel.origin.x - 4, CGRectGetMidY(panel)), 0);
    EXPECT_NEAR(gray(panel.origin.x + 6, panel.origin.y + 22), 37, 1);
}

TEST_F(MenuPresentationTest, tellsAssistivePrograms) {
    tap(gear());
    settle();
    std::vector<std::string> labels;
    for (const auto& element : AccessibilityElement::allIn(menu()->shownView()))
        labels.push_back(element.label);
    EXPECT_THAT(labels, ElementsAre("Apply", "Reset Settings", "Never"));
}

TEST_F(MenuPresentationTest, tellsOfItsActions) {
    tap(gear());
    settle();
    const auto actions = menu()->actions();
    ASSERT_EQ(actions.size(), 3U);
    EXPECT_EQ(actions[0].title, "Apply");
    EXPECT_EQ(actions[0].symbol, "gear");
    EXPECT_FALSE(actions[0].destructive);
    EXPECT_FALSE(actions[0].disabled);
    EXPECT_EQ(actions[1].title, "Reset Settings");
    EXPECT_TRUE(actions[1].destructive);
    EXPECT_TRUE(actions[2].disabled);
}

TEST_F(MenuPresentationTest, isBelowItsButtonAndAwayFromTheEdges) {
    tap(gear());
    settle();
    const auto frame = screenFrame(menu()->shownView());
    EXPECT_EQ(frame.size, (CGSize{250, 132}));
    EXPECT_DOUBLE_EQ(frame.origin.y, 95);
    EXPECT_LE(CGRectGetMaxX(frame), 382);
    EXPECT_EQ(menu()->actions()[1].frame, CGRectMake(frame.origin.x, 95 + 44, 250, 44));
}

TEST_F(MenuPresentationTest, growsOutOfItsButton) {
    tap(gear());
    const auto& layer = menu()->shownView().layer().peer();
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Opacity)[0], 0);
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Transform)[0], 0.2);
    advance(milliseconds(400));
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Opacity)[0], 1);
    EXPECT_DOUBLE_EQ(layer.shownValue(LayerProperty::Transform)[0], 1);
}

TEST_F(MenuPresentationTest, aChoiceBeginsToCloseTheMenuAndIsCarriedOutWhenItHasClosed) {
    tap(gear());
    settle();
    tap(middleOf(menu()->actions()[0].frame));
    EXPECT_EQ(menu(), nullptr);
    EXPECT_THAT(chosen, ElementsAre());
    advance(milliseconds(249));
    EXPECT_THAT(chosen, ElementsAre());
    advance(milliseconds(1));
    EXPECT_THAT(chosen, ElementsAre("Apply"));
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_F(MenuPresentationTest, aTouchAroundItClosesItAndReachesNothingBeneath) {
    tap(gear());
    settle();
    tap(CGPoint{100, 600});
    EXPECT_EQ(menu(), nullptr);
    tap(gear()); // while it closes it is in nobody's way
    EXPECT_NE(menu(), nullptr);
    settle();
    EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(MenuPresentationTest, aFingerThatSlidesFromTheButtonToARowAndIsLiftedChoosesIt) {
    finger.touch(TouchPhase::Began, middleOf(screenFrame(gear())));
    advance(milliseconds(500));
    const auto row = middleOf(menu()->actions()[1].frame);
    finger.touch(TouchPhase::Moved, row);
    finger.touch(TouchPhase::Ended, row);
    settle();
    EXPECT_THAT(chosen, ElementsAre("Reset Settings"));
    EXPECT_EQ(menu(), nullptr);
}

TEST_F(MenuPresentationTest, aFingerMayMoveFromRowToRow) {
    tap(gear());
    settle();
    const auto actions = menu()->actions();
    finger.touch(TouchPhase::Began, middleOf(actions[1].frame));
    finger.touch(TouchPhase::Moved, middleOf(actions[0].frame));
    finger.touch(TouchPhase::Ended, middleOf(actions[0].frame));
    settle();
    EXPECT_THAT(chosen, ElementsAre("Apply"));
}

TEST_F(MenuPresentationTest, aRowStandsOutAsSoonAsAFingerIsOnIt) {
    tap(gear());
    settle();
    const auto& row = *dynamic_cast<MenuView&>(menu()->shownView()).rows()[1];
    const auto& highlight = *row.peer().subviews().front();
    EXPECT_TRUE(highlight.peer().isHidden());
    down(middleOf(menu()->actions()[1].frame));
    EXPECT_FALSE(highlight.peer().isHidden());
    move(middleOf(menu()->actions()[0].frame));
    EXPECT_TRUE(highlight.peer().isHidden());
}

TEST_F(MenuPresentationTest, aDisabledActionIsNotChosenAndTheMenuStays) {
    tap(gear());
    settle();
    tap(middleOf(menu()->actions()[2].frame));
    settle();
    EXPECT_NE(menu(), nullptr);
    EXPECT_THAT(chosen, ElementsAre());
}

TEST_F(MenuPresentationTest, isDismissedWithoutAChoice) {
    tap(gear());
    settle();
    menu()->dismissPresented();
    settle();
    EXPECT_EQ(menu(), nullptr);
    EXPECT_THAT(chosen, ElementsAre());
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_F(MenuPresentationTest, itsButtonIsPaleUntilItCloses) {
    tap(gear());
    settle();
    const auto& pale = dynamic_cast<BarButtonView&>(gear()).content();
    EXPECT_DOUBLE_EQ(pale.layer().peer().number(LayerProperty::Opacity), 0.2);
    menu()->dismissPresented();
    EXPECT_DOUBLE_EQ(pale.layer().peer().number(LayerProperty::Opacity), 1);
}

TEST_F(MenuPresentationTest, veryManyRowsScrollBelowTheTitleOnceTheyHaveNoRoom) {
    openMenuOf(40);
    const auto frame = screenFrame(menu()->shownView());
    EXPECT_DOUBLE_EQ(frame.origin.y, 95);
    ASSERT_DOUBLE_EQ(CGRectGetMaxY(frame), 844 - 34 - 8);
    EXPECT_DOUBLE_EQ(menu()->actions()[0].frame.origin.y, 95 + 32);
    drag({250, 600}, {250, 300});
    EXPECT_LT(menu()->actions()[0].frame.origin.y, 95 + 32 - 200);
    up({250, 300});
    settle();
    EXPECT_THAT(chosen, ElementsAre()) << "a finger that scrolls chooses nothing";
    ASSERT_NE(menu(), nullptr);
    tap(CGPoint{250, 95 + 16});
    settle();
    ASSERT_NE(menu(), nullptr) << "rows that are scrolled away are not behind the title";
    for (auto times = 0; times < 8; ++times) {
        drag({250, 700}, {250, 300});
        up({250, 300});
        settle();
    }
    EXPECT_NEAR(CGRectGetMaxY(menu()->actions().back().frame), CGRectGetMaxY(frame), 1e-6);
    tap(middleOf(menu()->actions()[38].frame));
    settle();
    EXPECT_THAT(chosen, ElementsAre("39"));
}

TEST_F(MenuPresentationTest, aFingerThatHasRestedOnARowOfManyChoosesAndDoesNotScroll) {
    openMenuOf(40);
    const auto actions = menu()->actions();
    down(middleOf(actions[9].frame));
    advance(milliseconds(200));
    for (const auto row : {8, 7, 6})
        move(middleOf(actions.at(static_cast<std::size_t>(row)).frame));
    EXPECT_EQ(menu()->actions()[6].frame, actions[6].frame);
    up(middleOf(actions[6].frame));
    settle();
    EXPECT_THAT(chosen, ElementsAre("7"));
}

TEST_F(MenuPresentationTest, theActionMayTakeTheWholeApplicationAway) {
    const auto leave = UIAction::actionWithTitle("Leave", nullptr, std::nullopt, [this](UIAction&) {
        screen.removeWindow(*window);
        window = nullptr;
    });
    page->navigationItem().setRightBarButtonItems(
        {UIBarButtonItem::initWithImage(nullptr, UIMenu::menuWithTitle("", {leave}))});
    settle();
    tap(gear());
    settle();
    tap(middleOf(menu()->actions()[0].frame));
    settle();
    EXPECT_TRUE(screen.windows().empty());
}

TEST_F(MenuPresentationTest, goesWithItsWindow) {
    tap(gear());
    screen.removeWindow(*window);
    window = nullptr;
    EXPECT_EQ(menu(), nullptr);
    settle();
    EXPECT_THAT(chosen, ElementsAre());
}

TEST(MenuFrameTest, keepsToTheSideOfItsSourceAndWithinTheScreen) {
    const auto screen = CGRectMake(0, 47, 390, 763);
    const CGSize size{250, 132};
    EXPECT_EQ(MenuPresentation::frameFor(size, CGRectMake(341, 47, 44, 44), screen),
              CGRectMake(132, 95, 250, 132));
    EXPECT_EQ(MenuPresentation::frameFor(size, CGRectMake(5, 47, 44, 44), screen),
              CGRectMake(8, 95, 250, 132));
    EXPECT_EQ(MenuPresentation::frameFor(size, CGRectMake(100, 400, 44, 44), screen),
              CGRectMake(100, 448, 250, 132));
}

TEST(MenuFrameTest, isAboveASourceThatHasNoRoomBelow) {
    EXPECT_EQ(MenuPresentation::frameFor({250, 132}, CGRectMake(5, 700, 44, 44), CGRectMake(0, 47, 390, 763)),
              CGRectMake(8, 564, 250, 132));
}

TEST(MenuFrameTest, isLessHighOnTheSideWithMoreRoomWhereNeitherHasEnough) {
    const auto screen = CGRectMake(0, 47, 390, 763);
    EXPECT_EQ(MenuPresentation::frameFor({250, 900}, CGRectMake(5, 100, 44, 44), screen),
              CGRectMake(8, 148, 250, 654));
    EXPECT_EQ(MenuPresentation::frameFor({250, 900}, CGRectMake(5, 700, 44, 44), screen),
              CGRectMake(8, 55, 250, 641));
}
