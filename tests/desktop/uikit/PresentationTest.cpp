#include "Presentation.h"

#include "PresentationFixture.h"
#include "UIControlPeer.h"
#include "UIKit/UIControl.h"

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
    UINavigationControllerPeer::of(*inNavigation).push(sheet, false);
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

// What is refused.

namespace {

struct Refusal {
    const char* name;
    std::function<void(UIViewController& root, const Ref<UIViewController>& other)> arrange;
    std::function<UIViewController*(UIViewController& root)> presenter;
    const char* problem;
};

void PrintTo(const Refusal& refusal, std::ostream* stream) {
    *stream << refusal.name;
}

class RefusedPresentation : public PresentationFixture, public testing::WithParamInterface<Refusal> {};

} // namespace

TEST_P(RefusedPresentation, isLoggedOnceAndItsCompletionNeverCalled) {
    const auto other = page("O");
    GetParam().arrange(*navigation, other);
    const auto before = navigation->presentedViewController();
    const auto lone = page("Lone");
    static_cast<void>(device.log().take());
    auto* const presenter = GetParam().presenter(*navigation);
    presentOn(presenter != nullptr ? *presenter : *lone, other, true);
    const auto lines = device.log().take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], testing::StartsWith("Attempt to present "));
    EXPECT_THAT(lines[0], testing::HasSubstr(GetParam().problem));
    EXPECT_EQ(navigation->presentedViewController(), before);
    settle();
    EXPECT_THAT(log, testing::Not(testing::Contains("presented O")));
    EXPECT_THAT(device.log().take(), IsEmpty());
}

namespace {

void presentPlain(UIViewController& presenter, bool animated) {
    presenter.presentViewController(make<UIViewController>(), animated, {});
}

UIViewController* rootItself(UIViewController& root) {
    return &root;
}

UIViewController* whatItPresents(UIViewController& root) {
    return root.presentedViewController().get();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cases, RefusedPresentation,
    testing::Values(
        Refusal{"presentsAlready", [](auto& root, const auto&) { presentPlain(root, false); }, rootItself,
                "while it presents"},
        Refusal{"isPresenting", [](auto& root, const auto&) { presentPlain(root, true); }, rootItself,
                "while it presents"},
        Refusal{"isDismissing",
                [](auto& root, const auto&) {
                    presentPlain(root, false);
                    root.dismissViewControllerAnimated(true, {});
                },
                rootItself, "while it presents"},
        Refusal{"isBeingPresented", [](auto& root, const auto&) { presentPlain(root, true); }, whatItPresents,
                "on its way"},
        Refusal{"isBeingDismissed",
                [](auto& root, const auto&) {
                    presentPlain(root, false);
                    root.dismissViewControllerAnimated(true, {});
                },
                whatItPresents, "on its way"},
        Refusal{"isInNoWindow", [](auto&, const auto&) {}, [](auto&) -> UIViewController* { return nullptr; },
                "not in the window hierarchy"},
        Refusal{"isPresentedAlready",
                [](auto& root, const auto& other) { root.presentViewController(other, false, {}); },
                whatItPresents, "shown already"},
        Refusal{"isAChild", [](auto& root, const auto& other) { root.peer().addChild(other); }, rootItself,
                "shown already"}),
    [](const auto& one) { return one.param.name; });

TEST_F(PresentationTest, nothingAndThePresenterItselfAreRefused) {
    presentOn(*navigation, nullptr);
    presentOn(*navigation, navigation);
    EXPECT_EQ(device.log().take().size(), 2U);
    EXPECT_THAT(takeLog(), IsEmpty());
}

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

// From where it works.

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
    dynamic_cast<UIControlPeer&>(button->peer()).addHandler(UIControlEvents::TouchDown, [&] { ++touched; });
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
    dynamic_cast<UIControlPeer&>(button->peer()).addHandler(UIControlEvents::TouchCancel, [&] {
        ++cancelled;
    });
    peer().top()->view().addSubview(button);
    touches.touch(TouchPhase::Began, {195, 400});
    present(sheet, true);
    EXPECT_EQ(cancelled, 1);
}

// Ends of other things.

TEST_F(PresentationTest, thePresenterAloneKeepsWhatItPresents) {
    const Weak<UIViewController> watched(sheet);
    present(sheet, true);
    sheet = nullptr;
    settle();
    EXPECT_NE(watched.strong(), nullptr);
    dismissBy(*navigation, true);
    settle();
    EXPECT_EQ(watched.strong(), nullptr);
}

TEST_F(PresentationTest, theControllerThatWasDismissedIsGoneBeforeTheCompletion) {
    const Weak<UIViewController> watched(sheet);
    present(sheet);
    sheet = nullptr;
    auto isGone = false;
    navigation->dismissViewControllerAnimated(true, [&] { isGone = !watched.strong(); });
    settle();
    EXPECT_TRUE(isGone);
}

namespace {

struct Moment {
    const char* name;
    int presentingFor; ///< milliseconds
    std::optional<int> dismissingFor;
};

void PrintTo(const Moment& moment, std::ostream* stream) {
    *stream << moment.name;
}

class EndInBetween : public PresentationFixture, public testing::WithParamInterface<Moment> {
protected:
    EndInBetween() {
        auto lower = page("B");
        auto upper = page("C");
        watched.emplace_back(lower);
        watched.emplace_back(upper);
        present(lower);
        presentOn(*lower, upper, true);
        advance(milliseconds(GetParam().presentingFor));
        if (GetParam().dismissingFor) {
            dismissBy(*navigation, true);
            advance(milliseconds(*GetParam().dismissingFor));
        }
        takeLog();
    }

    ~EndInBetween() override {
        settle();
        for (const auto& controller : watched)
            EXPECT_EQ(controller.strong(), nullptr);
        EXPECT_EQ(screen.presentations().top(), nullptr);
        for (const auto& line : log)
            EXPECT_THAT(line,
                        testing::AnyOf(testing::HasSubstr(" D"), testing::StartsWith("viewWillDisappear"),
                                       testing::StartsWith("viewDidDisappear")));
        EXPECT_THAT(log, testing::Not(testing::Contains(testing::StartsWith("presented"))));
    }

    std::vector<Weak<UIViewController>> watched;
};

} // namespace

TEST_P(EndInBetween, ofTheWindowLeavesNothing) {
    screen.removeWindow(*window);
    window = nullptr;
}

TEST_P(EndInBetween, ofTheWindowsPlaceOnTheScreenLeavesNothing) {
    screen.removeWindow(*window);
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_P(EndInBetween, ofTheRootLeavesNothing) {
    window->setRootViewController(make<UIViewController>());
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_P(EndInBetween, ofThePresenterWithItsWindowLeavesNothing) {
    window->setRootViewController(nullptr);
    screen.removeWindow(*window);
    navigation = nullptr;
    window = nullptr;
}

TEST_P(EndInBetween, ofThePresenterAloneLeavesNothing) {
    const auto view = retain(&navigation->view());
    screen.removeWindow(*window);
    window->setRootViewController(nullptr);
    window->addSubview(view); // held by the window while its controller goes
    screen.addWindow(window);
    const auto late = page("D");
    watched.emplace_back(late);
    presentOn(*navigation, late, true);
    navigation = nullptr;
    EXPECT_EQ(window->peer().subviews().size(), 1U);
    window = nullptr;
}

INSTANTIATE_TEST_SUITE_P(Moments, EndInBetween,
                         testing::Values(Moment{"atTheStart", 0, {}}, Moment{"onTheWayIn", 100, {}},
                                         Moment{"whilePresented", 500, {}}, Moment{"turningRound", 200, 0},
                                         Moment{"onTheWayOut", 500, 100},
                                         Moment{"justBeforeTheEnd", 500, 499}),
                         [](const auto& one) { return one.param.name; });

TEST_F(PresentationTest, theCompletionMayEndTheApplication) {
    for (const auto animated : {false, true}) {
        present(page("B"));
        takeLog();
        navigation->dismissViewControllerAnimated(animated, [this] {
            window->setRootViewController(nullptr);
            log.emplace_back("ended");
        });
        settle();
        EXPECT_EQ(log.back(), "ended");
        window->setRootViewController(navigation);
    }
}

TEST_F(PresentationTest, onlyWhatIsInAWindowInUseIsToldOf) {
    present(sheet);
    EXPECT_NE(top(), nullptr);
    window->setUserInteractionEnabled(false);
    EXPECT_EQ(top(), nullptr);
    window->setUserInteractionEnabled(true);
    EXPECT_NE(top(), nullptr);
}
