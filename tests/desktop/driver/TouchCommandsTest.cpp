#include "DriverFixture.h"
#include "PresentedStandIn.h"
#include "UIKit/UIAlertController.h"
#include "UIKit/UINavigationController.h"
#include "controllers/DesktopBarButtonItem.h"
#include "controllers/UIViewControllerPeer.h"
#include "menus/MenuPresentation.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UIViewPeer.h"

namespace {

using TouchCommandsTest = DriverFixture;

constexpr CGRect upper = CGRectMake(20, 100, 200, 44);
constexpr CGRect lower = CGRectMake(20, 200, 200, 44);

QJsonArray json(const CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

TEST_F(TouchCommandsTest, TapPressesByAccessibilityLabel) {
    auto presses = 0;
    const auto button = addButton(upper, "Reset Settings", presses);
    const auto answer = ask(R"(tap "Reset Settings")");
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(answer.value("class").toString(), "UIControl");
    EXPECT_EQ(answer.value("frame").toArray(), json(upper));
}

TEST_F(TouchCommandsTest, TapPressesByText) {
    auto presses = 0;
    const auto button = addButton(upper, "", presses);
    const auto label = addLabel(CGRectMake(0, 0, 200, 44), "Apply", *button);
    EXPECT_EQ(ask("tap Apply").value("screenFrame").toArray(), json(upper));
    EXPECT_EQ(presses, 1);
}

TEST_F(TouchCommandsTest, TapCountsElementsWithinEachOtherOnce) {
    auto first = 0;
    auto second = 0;
    const auto upperButton = addButton(upper, "Apply", first);
    const auto label = addLabel(CGRectMake(0, 0, 200, 44), "Apply", *upperButton);
    const auto lowerButton = addButton(lower, "Apply", second);
    static_cast<void>(ask("tap Apply #2"));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(refusalOf("tap Apply #3"), "there is no such element on the screen");
}

TEST_F(TouchCommandsTest, TapRefusesWhatIsNotShown) {
    auto presses = 0;
    const auto button = addButton(upper, "Apply", presses);
    button->peer().setHidden(true);
    EXPECT_EQ(refusalOf("tap Apply"), "there is no such element on the screen");
    EXPECT_EQ(refusalOf("tap apply"), "there is no such element on the screen");
    EXPECT_EQ(presses, 0);
}

class BadTap : public DriverFixture, public testing::WithParamInterface<const char*> {};

TEST_P(BadTap, IsRefused) {
    auto presses = 0;
    const auto button = addButton(upper, "Apply", presses);
    EXPECT_TRUE(refusalOf(GetParam()).starts_with("usage: tap")) << GetParam();
    EXPECT_EQ(presses, 0);
}

INSTANTIATE_TEST_SUITE_P(Lines, BadTap,
                         testing::Values("tap", "tap \"\"", "tap Apply #0", "tap Apply #-1", "tap Apply #x",
                                         "tap Apply 1", "tap Apply \"#1\"", "tap Apply #1 #1",
                                         "tap Apply #1x", "tap Apply #99999999999999999999"));

TEST_F(TouchCommandsTest, TapScrollsTheElementIntoView) {
    const auto scroll = make<UIScrollView>();
    scroll->setFrame(CGRectMake(0, 100, 390, 600));
    peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 3000});
    window->addSubview(scroll);
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 2500, 200, 44), "Far", presses);
    scroll->addSubview(button);
    const auto place = ask("tap Far").value("screenFrame").toArray();
    static_cast<void>(ask("settle"));
    EXPECT_EQ(presses, 1);
    EXPECT_GE(place[1].toDouble(), 100);
    EXPECT_LE(place[1].toDouble() + 44, 700);
}

TEST_F(TouchCommandsTest, TapScrollsTheRowsOfALongMenu) {
    auto chosen = 0;
    std::vector<Ref<UIAction>> actions;
    for (auto number = 1; number <= 40; ++number)
        actions.push_back(UIAction::actionWithTitle(std::to_string(number), nullptr, std::nullopt,
                                                    [&chosen, number](UIAction&) { chosen = number; }));
    auto presses = 0;
    const auto button = addButton(upper, "More", presses);
    static_cast<void>(
        MenuPresentation::open(dynamicCast<DesktopMenu>(UIMenu::menuWithTitle("", actions)), *button, {}));
    static_cast<void>(ask("settle"));
    static_cast<void>(ask("tap 38"));
    static_cast<void>(ask("settle"));
    EXPECT_EQ(chosen, 38);
}

TEST_F(TouchCommandsTest, TapLooksInWhatIsPresentedOnly) {
    auto below = 0;
    const auto button = addButton(upper, "Apply", below);
    const auto cover = make<PresentedStandIn>();
    cover->setFrame(window->bounds());
    window->addSubview(cover);
    screen.presentations().add(*cover, *cover);
    EXPECT_EQ(refusalOf("tap Apply"), "there is no such element on the screen");
    auto above = 0;
    const auto other = addButton(lower, "Apply", above);
    cover->addSubview(other);
    static_cast<void>(ask("tap Apply"));
    EXPECT_EQ(below, 0);
    EXPECT_EQ(above, 1);
}

TEST_F(TouchCommandsTest, ScreenAndBackKnowWhatIsPresented) {
    const auto cover = make<PresentedStandIn>();
    cover->shownActions = {
        {.title = "Reset", .symbol = "gear", .destructive = true, .disabled = false, .frame = upper}};
    window->addSubview(cover);
    screen.presentations().add(*cover, *cover);
    const auto presented = ask("screen").value("presented").toArray();
    ASSERT_EQ(presented.size(), 1);
    EXPECT_EQ(presented[0]["kind"].toString(), "menu");
    EXPECT_EQ(presented[0]["title"].toString(), "Stand-in");
    const auto action = presented[0]["actions"].toArray().at(0).toObject();
    EXPECT_EQ(action.value("title").toString(), "Reset");
    EXPECT_EQ(action.value("style").toString(), "destructive");
    EXPECT_EQ(action.value("symbol").toString(), "gear");
    EXPECT_EQ(refusalOf("back"), "the navigation bar is covered: menu");
    EXPECT_TRUE(application_.asked_.empty());
}

TEST_F(TouchCommandsTest, TouchFollowsAFinger) {
    auto presses = 0;
    const auto button = addButton(upper, "Apply", presses);
    static_cast<void>(ask("touch down 60 120"));
    EXPECT_TRUE(button->isTracking());
    static_cast<void>(ask("touch move 61.5 121"));
    static_cast<void>(ask("touch up 61.5 121"));
    EXPECT_EQ(presses, 1);
    static_cast<void>(ask("touch down 60 120"));
    static_cast<void>(ask("touch cancel 60 120"));
    EXPECT_EQ(presses, 1);
}

TEST_F(TouchCommandsTest, ASecondDownTakesTheFirstTouchAway) {
    auto first = 0;
    auto second = 0;
    const auto upperButton = addButton(upper, "Apply", first);
    const auto lowerButton = addButton(lower, "Reset", second);
    static_cast<void>(ask("touch down 60 120"));
    static_cast<void>(ask("touch down 60 220"));
    EXPECT_FALSE(upperButton->isTracking());
    EXPECT_TRUE(lowerButton->isTracking());
    static_cast<void>(ask("touch up 60 220"));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

class BadTouch : public DriverFixture, public testing::WithParamInterface<const char*> {};

TEST_P(BadTouch, IsRefused) {
    EXPECT_FALSE(refusalOf(GetParam()).empty());
    EXPECT_FALSE(finger.isTouching());
}

INSTANTIATE_TEST_SUITE_P(Lines, BadTouch,
                         testing::Values("touch", "touch down", "touch down 1", "touch down 1 2 3",
                                         "touch Down 1 2", "touch down nan 2", "touch down 1 inf",
                                         "touch down 1e400 2", "touch down 1x 2", "touch down 1 -100001",
                                         "touch move 1 2", "touch up 1 2", "touch cancel 1 2"));

TEST_F(TouchCommandsTest, AFingerMayLeaveTheScreen) {
    for (const auto* const line : {"touch down 100 100", "touch move -100000 100", "touch move 100 100000"})
        static_cast<void>(ask(line));
    EXPECT_TRUE(finger.isTouching());
}

/// A window whose controller presents another one.
class PresentingTest : public DriverFixture {
protected:
    PresentingTest() { window->setRootViewController(root_); }

    void present(const Ref<UIViewController>& controller) {
        root_->presentViewController(controller, false, {});
    }

    [[nodiscard]] QJsonObject presented() const {
        const auto all = ask("screen").value("presented").toArray();
        EXPECT_EQ(all.size(), 1);
        return all.at(0).toObject();
    }

    Ref<UIViewController> root_ = make<UIViewController>();
};

TEST_F(PresentingTest, SwipeDownDismissesASheetUnlessTheUserMayNot) {
    EXPECT_EQ(refusalOf("swipe-down"), "no sheet is presented");
    const auto sheet = make<UIViewController>();
    sheet->setModalInPresentation(true);
    present(sheet);
    EXPECT_FALSE(ask("swipe-down").value("dismissed").toBool(true));
    static_cast<void>(ask("settle"));
    EXPECT_EQ(root_->presentedViewController(), sheet);
    sheet->setModalInPresentation(false);
    EXPECT_TRUE(ask("swipe-down").value("dismissed").toBool());
    static_cast<void>(ask("settle"));
    EXPECT_EQ(root_->presentedViewController(), nullptr);
}

TEST_F(PresentingTest, SwipeDownLeavesAlertsAlone) {
    present(UIAlertController::alertControllerWithTitle("A", "B", UIAlertControllerStyle::Alert));
    EXPECT_EQ(refusalOf("swipe-down"), "no sheet is presented");
}

TEST_F(PresentingTest, ScreenTellsWhichActionsCannotBeChosen) {
    const auto menu = make<PresentedStandIn>();
    menu->shownActions = {
        {.title = "Apply", .symbol = {}, .destructive = false, .disabled = false, .frame = {}},
        {.title = "Never", .symbol = {}, .destructive = false, .disabled = true, .frame = {}}};
    screen.presentations().add(*menu, *menu);
    const auto actions = presented().value("actions").toArray();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]["enabled"], true);
    EXPECT_EQ(actions[1]["enabled"], false);
}

TEST_F(PresentingTest, ScreenTellsOfASheet) {
    const auto sheet = make<UIViewController>();
    sheet->peer().setTitle("Notes");
    sheet->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    present(sheet);
    EXPECT_EQ(presented(), (QJsonObject{{"kind", "sheet"},
                                        {"class", "UIViewController"},
                                        {"title", "Notes"},
                                        {"detail", QJsonValue()},
                                        {"symbol", QJsonValue()},
                                        {"style", "formSheet"},
                                        {"swipeDismissable", true},
                                        {"items", QJsonArray()},
                                        {"left", QJsonArray()},
                                        {"right", QJsonArray()},
                                        {"actions", QJsonArray()},
                                        {"fields", QJsonArray()},
                                        {"urls", QJsonArray()},
                                        {"popover", QJsonValue()}}));
}

TEST_F(PresentingTest, ScreenTellsOfTheBarOfASheet) {
    const auto page = make<UIViewController>();
    DesktopBarButtonItem::Content content;
    content.title = "Done";
    page->navigationItem().setRightBarButtonItems({make<DesktopBarButtonItem>(content)});
    const auto sheet = make<UINavigationController>();
    sheet->pushViewController(page, false);
    present(sheet);
    const auto right = presented().value("right").toArray();
    ASSERT_EQ(right.size(), 1);
    EXPECT_EQ(right.at(0).toObject().value("title").toString(), "Done");
}

TEST_F(PresentingTest, ScreenTellsOfAnAlertWhoseButtonsAreTapped) {
    auto chosen = 0;
    const auto alert =
        UIAlertController::alertControllerWithTitle("Reset Settings", "Sure?", UIAlertControllerStyle::Alert);
    alert->addAction(UIAlertAction::actionWithTitle("Reset", UIAlertActionStyle::Destructive,
                                                    [&chosen](UIAlertAction&) { ++chosen; }));
    alert->addAction(UIAlertAction::actionWithTitle("Later", UIAlertActionStyle::Default, {}));
    alert->addAction(UIAlertAction::actionWithTitle("Cancel", UIAlertActionStyle::Cancel, {}));
    present(alert);
    const auto report = presented();
    EXPECT_EQ(report.value("kind").toString(), "alert");
    EXPECT_EQ(report.value("class").toString(), "UIAlertController");
    EXPECT_EQ(report.value("detail").toString(), "Sure?");
    EXPECT_EQ(report.value("style").toString(), "alert");
    EXPECT_FALSE(report.value("swipeDismissable").toBool(true));
    QStringList actions;
    for (const QJsonValue action : report.value("actions").toArray())
        actions << action.toObject().value("title").toString() + " " +
                       action.toObject().value("style").toString();
    EXPECT_EQ(actions, (QStringList{"Reset destructive", "Later default", "Cancel cancel"}));
    static_cast<void>(ask("tap Reset"));
    EXPECT_EQ(ask("screen").value("presented").toArray().size(), 0);
    static_cast<void>(ask("settle"));
    EXPECT_EQ(chosen, 1);
}

} // namespace
