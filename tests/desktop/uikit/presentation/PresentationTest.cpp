#include "presentation/Presentation.h"

#include "UIKit/UIControl.h"
#include "controls/UIControlPeer.h"
#include "presentation/PresentationFixture.h"

#include <functional>
#include <ostream>

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class PresentationTest : public PresentationFixture {
protected:
    Ref<LoggedPage> sheet = page("B");
    Ref<LoggedPage> second = page("C");
};

/// A page that does something when it is loaded.
class LoadingPage final : public UIViewController {
public:
    explicit LoadingPage(std::function<void(UIViewController&)> loaded) : loaded_(std::move(loaded)) {}

    // UIViewController:
    void viewDidLoad() override {
        UIViewController::viewDidLoad();
        loaded_(*this);
    }

private:
    std::function<void(UIViewController&)> loaded_;
};

} // namespace

TEST_F(PresentationTest, withoutAnAnimationEverythingIsDoneBeforeTheCallsReturn) {
    present(sheet);
    EXPECT_THAT(takeLog(),
                ElementsAre("viewDidLoad B", "viewWillAppear B", "viewDidAppear B", "presented B"));
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    EXPECT_EQ(sheet->view().peer().window(), window.get());
    dismissBy(*navigation, false);
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B", "viewDidDisappear B", "dismissed"));
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
    EXPECT_EQ(sheet->view().peer().window(), nullptr);
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_F(PresentationTest, withAnAnimationTheEndIsToldWhenItHasEnded) {
    present(sheet, true);
    EXPECT_THAT(takeLog(), ElementsAre("viewDidLoad B", "viewWillAppear B"));
    advance(milliseconds(499));
    EXPECT_THAT(takeLog(), IsEmpty());
    advance(milliseconds(1));
    EXPECT_THAT(takeLog(), ElementsAre("viewDidAppear B", "presented B"));
    dismissBy(*navigation, true);
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B"));
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    advance(milliseconds(499));
    EXPECT_THAT(takeLog(), IsEmpty());
    advance(milliseconds(1));
    EXPECT_THAT(takeLog(), ElementsAre("viewDidDisappear B", "dismissed"));
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
}

TEST_F(PresentationTest, presentedViewControllerIsEmptyInTheCompletionOfADismissalAndNotBefore) {
    present(sheet);
    auto presented = Ref<UIViewController>(sheet);
    navigation->dismissViewControllerAnimated(true,
                                              [&] { presented = navigation->presentedViewController(); });
    settle();
    EXPECT_EQ(presented, nullptr);
}

TEST_F(PresentationTest, aPageInsideAsksTheOutermostControllerToPresentAndToDismiss) {
    const auto inner = peer().top();
    presentOn(*inner, sheet);
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    EXPECT_EQ(inner->presentedViewController(), sheet);
    EXPECT_EQ(sheet->presentedViewController(), nullptr);
    dismissBy(*inner, false);
    EXPECT_EQ(inner->presentedViewController(), nullptr);
}

TEST_F(PresentationTest, whatIsPresentedIsDismissedByWhoeverAsksForIt) {
    const auto inNavigation = make<UINavigationController>();
    peerOf<UINavigationControllerPeer>(*inNavigation).push(sheet, false);
    for (UIViewController* asking : std::initializer_list<UIViewController*>{
             navigation.get(), peer().top().get(), inNavigation.get(), sheet.get()}) {
        present(inNavigation);
        takeLog();
        dismissBy(*asking, true);
        settle();
        EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B", "viewDidDisappear B", "dismissed"));
        EXPECT_EQ(navigation->presentedViewController(), nullptr);
    }
}

TEST_F(PresentationTest, dismissingWhereNothingIsPresentedDoesNothing) {
    for (const auto animated : {false, true}) {
        dismissBy(*navigation, animated);
        dismissBy(*sheet, animated);
    }
    settle();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(PresentationTest, thePresenterStaysWhereItIsAndIsToldNothing) {
    present(sheet);
    dismissBy(*navigation, true);
    settle();
    EXPECT_THAT(takeLog(), testing::Not(testing::Contains(testing::EndsWith(" A"))));
}

// From where it works.

TEST_F(PresentationTest, aControllerThatWasDismissedIsPresentedAgain) {
    for (auto round = 0; round < 3; ++round) {
        present(sheet, true);
        settle();
        EXPECT_EQ(sheet->view().peer().window(), window.get());
        dismissBy(*sheet, true);
        settle();
    }
    EXPECT_THAT(device.log().take(), IsEmpty());
    EXPECT_EQ(std::ranges::count(log, "dismissed"), 3);
}

TEST_F(PresentationTest, aPageThatIsBeingPushedPresentsWhenItIsLoaded) {
    const auto pushed = make<LoadingPage>([this](UIViewController& self) { presentOn(self, sheet, true); });
    navigation->pushViewController(pushed, true);
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    settle();
    EXPECT_EQ(peer().top(), pushed);
    EXPECT_THAT(log, testing::Contains("presented B"));
    EXPECT_THAT(device.log().take(), IsEmpty());
}

TEST_F(PresentationTest, whatIsPresentedPresentsInTheCompletionOfItsOwnPresentation) {
    navigation->presentViewController(sheet, true, [this] { presentOn(*sheet, second, true); });
    settle();
    EXPECT_EQ(sheet->presentedViewController(), second);
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    EXPECT_THAT(screen.presentations().all().size(), 2U);
}

TEST_F(PresentationTest, thePresenterPresentsAgainInTheCompletionOfADismissal) {
    present(sheet);
    navigation->dismissViewControllerAnimated(true, [this] { present(second, true); });
    settle();
    EXPECT_EQ(navigation->presentedViewController(), second);
}

// Several above each other.

TEST_F(PresentationTest, dismissingByTheLowestDropsAllAboveItAndAnimatesTheTopmostAlone) {
    present(sheet);
    presentOn(*sheet, second);
    takeLog();
    const auto& lowerCard = sheetOf(sheet).shownView();
    dismissBy(*navigation, true);
    EXPECT_TRUE(lowerCard.peer().isHidden());
    EXPECT_EQ(top(), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear C", "viewWillDisappear B"));
    advance(milliseconds(499));
    EXPECT_THAT(takeLog(), IsEmpty());
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("viewDidDisappear C", "viewDidDisappear B", "dismissed"));
    EXPECT_EQ(sheet->presentedViewController(), nullptr);
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_F(PresentationTest, theTopmostAloneIsDismissedByItself) {
    present(sheet);
    presentOn(*sheet, second);
    dismissBy(*second, true);
    settle();
    EXPECT_EQ(sheet->presentedViewController(), nullptr);
    EXPECT_EQ(navigation->presentedViewController(), sheet);
}

TEST_F(PresentationTest, aDismissalOfAllTakesOneOverThatGoesOn) {
    present(sheet);
    presentOn(*sheet, second);
    takeLog();
    dismissBy(*second, true, "second");
    advance(milliseconds(100));
    dismissBy(*navigation, true, "all");
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear C", "viewWillDisappear B", "viewDidDisappear C",
                                       "viewDidDisappear B", "second", "all"));
}

// Changes of mind.

TEST_F(PresentationTest, turnsRoundWhereItIsWhenItIsDismissedOnItsWay) {
    present(sheet, true);
    advance(milliseconds(100));
    const auto& card = sheetOf(sheet).shownView();
    const auto before = shownFrame(card).origin.y;
    dismissBy(*navigation, true);
    EXPECT_NEAR(shownFrame(card).origin.y, before, 1e-9);
    EXPECT_GT(before, 100);
    EXPECT_LT(before, 800);
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("viewDidLoad B", "viewWillAppear B", "viewWillDisappear B",
                                       "viewDidDisappear B", "presented B", "dismissed"));
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_F(PresentationTest, isGoneAtOnceWhenThatIsAskedForOnItsWay) {
    for (const auto time : {0, 100, 499}) {
        present(sheet, true);
        advance(milliseconds(time));
        dismissBy(*sheet, false);
        EXPECT_EQ(log.back(), "dismissed");
        EXPECT_EQ(navigation->presentedViewController(), nullptr);
        takeLog();
        settle();
        EXPECT_THAT(takeLog(), IsEmpty());
    }
}

TEST_F(PresentationTest, aSecondDismissalAwaitsTheEndOfTheFirst) {
    present(sheet);
    takeLog();
    dismissBy(*navigation, true, "first");
    advance(milliseconds(100));
    dismissBy(*sheet, true, "second");
    advance(milliseconds(399));
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B"));
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("viewDidDisappear B", "first", "second"));
}

TEST_F(PresentationTest, aSecondDismissalWithoutAnAnimationEndsTheFirst) {
    present(sheet);
    takeLog();
    dismissBy(*navigation, true, "first");
    dismissBy(*navigation, false, "second");
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B", "viewDidDisappear B", "first", "second"));
    settle();
    EXPECT_THAT(takeLog(), IsEmpty());
}

// Touches.

TEST_F(PresentationTest, noTouchGetsThroughToWhatIsBeneath) {
    auto touched = 0;
    const auto button = make<UIControl>();
    button->setFrame(window->bounds());
    peerOf<UIControlPeer>(*button).addHandler(UIControlEvents::TouchDown, [&] { ++touched; });
    peer().top()->view().addSubview(button);
    const auto tapEverywhere = [this] {
        for (const auto y : {200.0, 400.0, 700.0})
            tap(CGPoint{195, y});
    };
    tapEverywhere();
    EXPECT_EQ(touched, 3);
    present(sheet, true);
    tapEverywhere();
    advance(milliseconds(100));
    tapEverywhere();
    settle();
    tapEverywhere();
    tap(CGPoint{195, 52});
    dismissBy(*sheet, true);
    advance(milliseconds(300));
    tapEverywhere();
    EXPECT_EQ(touched, 3);
    settle();
    tapEverywhere();
    EXPECT_EQ(touched, 6);
}

TEST_F(PresentationTest, aFingerThatIsDownBeneathIsTakenAway) {
    auto cancelled = 0;
    const auto button = make<UIControl>();
    button->setFrame(window->bounds());
    peerOf<UIControlPeer>(*button).addHandler(UIControlEvents::TouchCancel, [&] { ++cancelled; });
    peer().top()->view().addSubview(button);
    finger.touch(TouchPhase::Began, {195, 400});
    present(sheet, true);
    EXPECT_EQ(cancelled, 1);
}

// What is told of it.

TEST_F(PresentationTest, onlyWhatIsInAWindowInUseIsToldOf) {
    present(sheet);
    EXPECT_NE(top(), nullptr);
    window->setUserInteractionEnabled(false);
    EXPECT_EQ(top(), nullptr);
    window->setUserInteractionEnabled(true);
    EXPECT_NE(top(), nullptr);
}
