#include "CALayerPeer.h"
#include "navigation/NavigationFixture.h"

#include <gmock/gmock.h>

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;

class UINavigationControllerTest : public NavigationFixture {
protected:
    double shownX(const UIView& view) {
        auto x = 0.0;
        for (const auto* place = &view; place != nullptr; place = place->peer().superview())
            x = place->layer().peer().shownToSuperlayer()(CGPoint{x, 0}).x;
        return x;
    }

    const Ref<LoggedPage> a = page("A");
    const Ref<LoggedPage> b = page("B");
    const Ref<LoggedPage> c = page("C");
};

/// Writes down when it is laid out.
class LoggedViewPeer final : public UIViewPeer {
public:
    explicit LoggedViewPeer(PageLog& log) : log_(log) {}

    // UIViewPeer:
    void layoutSubviews() override { log_.emplace_back("layout"); }

private:
    PageLog& log_;
};

class LoggedView final : public UIView {
public:
    explicit LoggedView(PageLog& log) : UIView(std::make_unique<LoggedViewPeer>(log)) {}
};

class PadNavigationControllerTest : public NavigationFixture {
protected:
    PadNavigationControllerTest() : NavigationFixture({.idiom = Idiom::Pad, .scale = 2}) {}
};

} // namespace

TEST_F(UINavigationControllerTest, aPushTellsBothPagesAtItsBeginAndAtItsEnd) {
    show({a});
    navigation->pushViewController(b, true);
    EXPECT_THAT(log, ElementsAre("viewDidLoad B", "viewWillDisappear A", "viewWillAppear B"));
    log.clear();
    advance(milliseconds(490));
    EXPECT_THAT(log, ElementsAre());
    EXPECT_TRUE(peer().isTransitioning());
    advance(milliseconds(10));
    EXPECT_THAT(log, ElementsAre("viewDidDisappear A", "viewDidAppear B"));
    EXPECT_FALSE(peer().isTransitioning());
    EXPECT_EQ(a->view().peer().superview(), nullptr);
}

TEST_F(UINavigationControllerTest, aPageIsLaidOutOnceItKnowsThatItWillAppear) {
    show({a});
    b->view().addSubview(make<LoggedView>(log));
    log.clear();
    navigation->pushViewController(b, true);
    EXPECT_THAT(log, ElementsAre("viewWillDisappear A", "viewWillAppear B", "layout"));
}

TEST_F(UINavigationControllerTest, aPageUnderAFingerIsLaidOutOnceItKnowsThatItWillAppear) {
    show({a, b});
    a->view().addSubview(make<LoggedView>(log));
    log.clear();
    peer().beginInteractivePop();
    EXPECT_THAT(log, ElementsAre("viewWillDisappear B", "viewWillAppear A", "layout"));
    peer().endInteractivePop(true);
}

TEST_F(UINavigationControllerTest, aPopTellsBothPagesAndLetsTheTopGo) {
    show({a, b});
    peer().pop(true);
    EXPECT_THAT(log, ElementsAre("viewDidLoad A", "viewWillDisappear B", "viewWillAppear A"));
    EXPECT_THAT(titles(), ElementsAre("A"));
    log.clear();
    settle();
    EXPECT_THAT(log, ElementsAre("viewDidDisappear B", "viewDidAppear A"));
    EXPECT_FALSE(b->navigationController());
}

TEST_F(UINavigationControllerTest, withoutAnimationEverythingIsToldAtOnce) {
    show({a});
    navigation->pushViewController(b, false);
    EXPECT_THAT(log, ElementsAre("viewDidLoad B", "viewWillDisappear A", "viewWillAppear B",
                                 "viewDidDisappear A", "viewDidAppear B"));
}

TEST_F(UINavigationControllerTest, whileItIsNotShownPagesAreTakenInSilently) {
    peer().push(a, true);
    peer().push(b, true);
    EXPECT_THAT(log, ElementsAre());
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    window->setRootViewController(navigation);
    EXPECT_THAT(log, ElementsAre("viewDidLoad B", "viewWillAppear B", "viewDidAppear B"));
}

TEST_F(UINavigationControllerTest, changesDuringATransitionAreMadeAfterIt) {
    show({a});
    navigation->pushViewController(b, true);
    navigation->pushViewController(c, true);
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    advance(milliseconds(500));
    EXPECT_THAT(titles(), ElementsAre("A", "B", "C"));
    EXPECT_TRUE(peer().isTransitioning());
    peer().pop(false);
    peer().pop(false);
    settle();
    EXPECT_THAT(titles(), ElementsAre("A"));
    EXPECT_EQ(screenFrame(a->view()), screen.bounds());
}

TEST_F(UINavigationControllerTest, theRootStays) {
    show({a});
    peer().pop(true);
    EXPECT_THAT(titles(), ElementsAre("A"));
    EXPECT_THAT(log, ElementsAre());
}

TEST_F(UINavigationControllerTest, aPageIsOnTheStackOnce) {
    show({a, b});
    navigation->pushViewController(a, true);
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    EXPECT_THAT(device.log().take(), ElementsAre(HasSubstr("which it shows already")));
}

TEST_F(UINavigationControllerTest, anotherStackComesFromTheSideThatItsTopBelongsTo) {
    show({a, b});
    peer().setViewControllers({a}, true);
    EXPECT_LT(shownX(a->view()), 0);
    settle();
    peer().setViewControllers({c}, true);
    EXPECT_GT(shownX(c->view()), 0);
    settle();
    EXPECT_THAT(titles(), ElementsAre("C"));
    EXPECT_FALSE(a->navigationController());
}

TEST_F(UINavigationControllerTest, aStackWithTheSameTopChangesOnlyWhatIsBehindIt) {
    show({a, b});
    peer().setViewControllers({c, b}, true);
    EXPECT_THAT(log, ElementsAre());
    EXPECT_FALSE(peer().isTransitioning());
    EXPECT_EQ(content().backButton()->title(), "C");
}

TEST_F(UINavigationControllerTest, anEmptyStackShowsNothing) {
    show({a});
    peer().setViewControllers({}, true);
    settle();
    EXPECT_THAT(log, ElementsAre("viewWillDisappear A", "viewDidDisappear A"));
    EXPECT_FALSE(peer().top());
    peer().push(b, true);
    settle();
    EXPECT_EQ(screenFrame(b->view()), screen.bounds());
}

TEST_F(UINavigationControllerTest, theNewPageSlidesInOverTheOldOneAlongTheSystemsCurve) {
    show({a});
    navigation->pushViewController(b, true);
    EXPECT_DOUBLE_EQ(shownX(b->view()), 390);
    EXPECT_DOUBLE_EQ(shownX(a->view()), 0);
    advance(milliseconds(100));
    const auto progress = AnimationCurve::system().progress(0.2);
    EXPECT_NEAR(shownX(b->view()), 390 * (1 - progress), 1e-6);
    EXPECT_NEAR(shownX(a->view()), -0.3 * 390 * progress, 1e-6);
    EXPECT_EQ(screenFrame(b->view()), screen.bounds());
    settle();
    EXPECT_DOUBLE_EQ(shownX(b->view()), 0);
}

TEST_F(UINavigationControllerTest, theSafeAreaOfAPageEndsAtTheBarAlsoOnItsWay) {
    show({a});
    EXPECT_EQ(a->view().peer().safeAreaInsets(),
              (UIEdgeInsets{.top = 91, .left = 0, .bottom = 34, .right = 0}));
    navigation->pushViewController(b, true);
    advance(milliseconds(100));
    EXPECT_EQ(a->view().peer().safeAreaInsets(),
              (UIEdgeInsets{.top = 91, .left = 0, .bottom = 34, .right = 0}));
    EXPECT_EQ(b->view().peer().safeAreaInsets(),
              (UIEdgeInsets{.top = 91, .left = 0, .bottom = 34, .right = 0}));
}

TEST_F(UINavigationControllerTest, theBarOfAPhoneEndsAt91AndWithALargeTitleAt143) {
    show({a});
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 47, 390, 44));
    EXPECT_EQ(screenFrame(peer().bar().background()), CGRectMake(0, 0, 390, 91));
    peer().setPrefersLargeTitles(true);
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 47, 390, 96));
    EXPECT_DOUBLE_EQ(a->view().peer().safeAreaInsets().top, 143);
    navigation->pushViewController(b, true);
    settle();
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 47, 390, 44));
    EXPECT_DOUBLE_EQ(b->view().peer().safeAreaInsets().top, 91);
}

TEST_F(PadNavigationControllerTest, theBarOfATabletEndsAt74) {
    const auto root = page("A");
    show({root});
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 24, 820, 50));
    EXPECT_DOUBLE_EQ(root->view().peer().safeAreaInsets().top, 74);
}

TEST_F(UINavigationControllerTest, theBackButtonGoesBack) {
    show({a, b});
    tap(*content().backButton());
    settle();
    EXPECT_THAT(titles(), ElementsAre("A"));
    EXPECT_EQ(content().backButton(), nullptr);
}

TEST_F(UINavigationControllerTest, aSwipeFromTheLeadingEdgePastTheMiddleGoesBack) {
    show({a, b});
    drag({5, 400}, {275, 400}, 60);
    EXPECT_THAT(log, ElementsAre("viewDidLoad A", "viewWillDisappear B", "viewWillAppear A"));
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    EXPECT_NEAR(shownX(b->view()), 260, 1e-6);
    log.clear();
    advance(milliseconds(200)); // held still: it is the place that decides
    up({275, 400});
    settle();
    EXPECT_THAT(log, ElementsAre("viewDidDisappear B", "viewDidAppear A"));
    EXPECT_THAT(titles(), ElementsAre("A"));
}

TEST_F(UINavigationControllerTest, aSwipeThatIsGivenUpPutsThePageBack) {
    show({a, b});
    drag({5, 400}, {120, 400}, 60);
    log.clear();
    advance(milliseconds(200));
    up({120, 400});
    EXPECT_THAT(log, ElementsAre());
    settle();
    EXPECT_THAT(
        log, ElementsAre("viewWillDisappear A", "viewWillAppear B", "viewDidDisappear A", "viewDidAppear B"));
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    EXPECT_EQ(screenFrame(b->view()), screen.bounds());
    EXPECT_EQ(content().backButton()->title(), "A");
    EXPECT_EQ(a->view().peer().superview(), nullptr);
}

TEST_F(UINavigationControllerTest, aFlickGoesBackFromLessThanTheMiddle) {
    show({a, b});
    drag({5, 400}, {120, 400}, 5);
    up({120, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A"));
}

TEST_F(UINavigationControllerTest, aSwipeIsNothingAtTheRootDuringATransitionAndElsewhereOnThePage) {
    show({a});
    drag({5, 400}, {300, 400});
    EXPECT_FALSE(peer().isTransitioning());
    up({300, 400});
    navigation->pushViewController(b, true);
    advance(milliseconds(100));
    drag({5, 400}, {300, 400});
    up({300, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    drag({100, 400}, {380, 400});
    EXPECT_FALSE(peer().isTransitioning());
    up({380, 400});
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
}

TEST_F(UINavigationControllerTest, pagesAndBarTakeNoTouchesDuringATransition) {
    show({a, b});
    navigation->pushViewController(c, true);
    EXPECT_EQ(screen.hitTest({200, 400}), &navigation->view());
    EXPECT_EQ(screen.hitTest({20, 70}), &navigation->view());
    settle();
    EXPECT_EQ(screen.hitTest({200, 400}), &c->view());
    EXPECT_EQ(screen.hitTest({20, 70}), content().backButton());
}

TEST_F(UINavigationControllerTest, aPushUnderTheFingerWaitsForItsEnd) {
    show({a, b});
    drag({5, 400}, {100, 400}, 60);
    navigation->pushViewController(c, true);
    advance(milliseconds(200));
    up({100, 400});
    settle();
    EXPECT_THAT(titles(), ElementsAre("A", "B", "C"));
}

TEST_F(UINavigationControllerTest, mayGoInMidTransition) {
    show({a});
    navigation->pushViewController(b, true);
    advance(milliseconds(100));
    log.clear();
    window->setRootViewController(nullptr);
    navigation = nullptr;
    settle();
    EXPECT_EQ(a->peer().parent(), nullptr);
    EXPECT_EQ(b->peer().parent(), nullptr);
    EXPECT_EQ(b->peer().appearance(), UIViewControllerPeer::Appearance::Disappeared);
}

TEST_F(UINavigationControllerTest, mayLeaveTheScreenInMidTransitionAndStillEndsIt) {
    show({a});
    navigation->pushViewController(b, true);
    advance(milliseconds(100));
    window->setRootViewController(nullptr);
    settle();
    EXPECT_FALSE(peer().isTransitioning());
    EXPECT_THAT(titles(), ElementsAre("A", "B"));
    EXPECT_EQ(a->view().peer().superview(), nullptr);
}

TEST_F(UINavigationControllerTest, keepsAPageAliveUntilItsWayOutIsOver) {
    const Weak<UIViewController> gone = [this] {
        const auto page = this->page("D");
        show({a, page});
        return Weak<UIViewController>(page);
    }();
    peer().pop(true);
    EXPECT_TRUE(gone.strong());
    settle();
    EXPECT_FALSE(gone.strong());
}
