#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "navigation/NavigationFixture.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UILabelPeer.h"

#include <gtest/gtest.h>

namespace {

class BarTarget final : public NSObject {
public:
    void barButtonTapped(const Ref<NSObject>& sender) { senders.push_back(sender); }

    std::vector<Ref<NSObject>> senders;
};

const Class targetClass =
    Class::define<BarTarget>("BarTestTarget", {method<"barButtonTapped:", &BarTarget::barButtonTapped>()});

class UINavigationBarTest : public NavigationFixture {
protected:
    static Ref<DesktopBarButtonItem> item(const std::string& title, std::function<void()> action = {}) {
        DesktopBarButtonItem::Content content;
        content.title = title;
        content.action = std::move(action);
        return make<DesktopBarButtonItem>(content);
    }

    /// A page that is a scroll view of 2000 points, beneath the bar of a navigation controller.
    Ref<UIScrollView> showScrollingPage() {
        auto scrollView = make<UIScrollView>();
        scrollView->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth |
                                        UIViewAutoresizing::FlexibleHeight);
        scrollView->setFrame(a->view().bounds());
        peerOf<UIScrollViewPeer>(*scrollView).setContentSize({390, 2000});
        a->view().addSubview(scrollView);
        show({a});
        return scrollView;
    }

    /// A bar of its own in the window, 300 points wide and 56 high, with an item of that title.
    Ref<UINavigationBar> showOwnBar(const Ref<UINavigationItem>& item) {
        auto bar = make<UINavigationBar>();
        bar->setFrame(CGRectMake(20, 100, 300, 56));
        bar->setItems({item});
        window->addSubview(bar);
        layOut();
        return bar;
    }

    double titleAlpha() {
        return content().titleView().peer().superview()->layer().peer().number(LayerProperty::Opacity);
    }

    const Ref<LoggedPage> a = page("A");
};

} // namespace

TEST_F(UINavigationBarTest, showsThePagesTitleInTheMiddleAndFollowsIt) {
    show({a});
    a->peer().setTitle("Backups");
    settle();
    auto& title = content().titleView();
    EXPECT_EQ(title.peer().shownText(), "Backups");
    EXPECT_NEAR(CGRectGetMidX(screenFrame(title)), 195, 0.5);
    EXPECT_NEAR(CGRectGetMidY(screenFrame(title)), 69, 0.5);
    EXPECT_EQ(peerOf<UILabelPeer>(title).fontStyle(),
              (FontStyle{.size = 17, .weight = FontWeight::Semibold}));
}

TEST_F(UINavigationBarTest, aTitleViewKeepsItsSizeAndIsCentred) {
    const auto titleView = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(3, 4, 51, 31));
    a->navigationItem().setTitleView(titleView);
    a->peer().navigationItem().setLargeTitle(DesktopNavigationItem::LargeTitle::Never);
    show({a});
    EXPECT_EQ(screenFrame(*titleView).size, (CGSize{51, 31}));
    EXPECT_NEAR(CGRectGetMidX(screenFrame(*titleView)), 195, 0.2);
    EXPECT_NEAR(CGRectGetMidY(screenFrame(*titleView)), 69, 0.2);
}

TEST_F(UINavigationBarTest, aTitleViewWithoutASizeHasItsIntrinsicOne) {
    const auto label = make<UILabel>();
    label->setText("Title");
    a->navigationItem().setTitleView(label);
    show({a});
    EXPECT_NEAR(screenFrame(*label).size.width, *label->peer().intrinsicWidth(), 1e-6);
    EXPECT_NEAR(screenFrame(*label).size.height, *label->peer().intrinsicHeight(), 1e-6);
    label->setText("A longer title");
    a->navigationItem().setRightBarButtonItems({});
    settle();
    EXPECT_NEAR(screenFrame(*label).size.width, *label->peer().intrinsicWidth(), 1e-6);
}

TEST_F(UINavigationBarTest, theFirstRightItemIsNearestToTheEdge) {
    a->navigationItem().setRightBarButtonItems({item("Outer"), item("Inner")});
    show({a});
    const auto& buttons = content().rightButtons();
    ASSERT_EQ(buttons.size(), 2U);
    EXPECT_EQ(buttons[0]->peer().accessibility().label, "Outer");
    EXPECT_NEAR(CGRectGetMaxX(screenFrame(*buttons[0])) -
                    (screenFrame(*buttons[0]).size.width - buttons[0]->contentWidth()) / 2,
                374, 1e-6);
    EXPECT_LT(CGRectGetMaxX(screenFrame(*buttons[1])), CGRectGetMaxX(screenFrame(*buttons[0])));
}

TEST_F(UINavigationBarTest, itemsThatAreSetWhileThePageIsShownAppear) {
    show({a});
    EXPECT_TRUE(content().rightButtons().empty());
    a->navigationItem().setRightBarButtonItems({item("Edit")});
    a->peer().navigationItem().setLeftBarButtonItems({item("Cancel")});
    EXPECT_EQ(content().rightButtons().size(), 1U);
    EXPECT_EQ(content().leftButtons().size(), 1U);
}

TEST_F(UINavigationBarTest, aButtonRunsItsActionAndIsPaleWhileItIsPressed) {
    auto runs = 0;
    a->navigationItem().setRightBarButtonItems({item("Edit", [&runs] { ++runs; })});
    show({a});
    const auto& button = *content().rightButtons().at(0);
    const auto middle = CGPoint{CGRectGetMidX(screenFrame(button)), CGRectGetMidY(screenFrame(button))};
    finger.touch(TouchPhase::Began, middle);
    EXPECT_DOUBLE_EQ(button.content().layer().peer().number(LayerProperty::Opacity), 0.2);
    EXPECT_EQ(runs, 0);
    finger.touch(TouchPhase::Ended, middle);
    EXPECT_DOUBLE_EQ(button.content().layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_EQ(runs, 1);
}

TEST_F(UINavigationBarTest, aButtonTakesTheTintOfItsItemAlsoWhenItIsSetLater) {
    const auto edit = item("Edit");
    a->navigationItem().setRightBarButtonItems({edit});
    show({a});
    const auto tint = [this] {
        return DesktopColor::resolve(content().rightButtons().at(0)->peer().tintColor(), Traits());
    };
    EXPECT_EQ(tint(), systemColor(SystemColor::Blue, Appearance::Light));
    edit->setTintColor(UIColor::systemRedColor());
    EXPECT_EQ(tint(), systemColor(SystemColor::Red, Appearance::Light));
    edit->setTintColor(nullptr);
    EXPECT_EQ(tint(), systemColor(SystemColor::Blue, Appearance::Light));
}

TEST_F(UINavigationBarTest, theBackButtonNamesThePageBeforeAsFarAsThereIsRoom) {
    const auto b = page("B");
    a->peer().setTitle("Settings");
    show({a, b});
    EXPECT_EQ(content().backButton()->title(), "Settings");
    b->peer().setTitle("A title that is rather longer than usual");
    settle();
    EXPECT_EQ(content().backButton()->title(), "Back");
    b->peer().setTitle("A title that is much longer than any bar of a phone can show");
    settle();
    EXPECT_FALSE(content().backButton()->title());
    EXPECT_TRUE(peerOf<UILabelPeer>(content().titleView()).isTruncated());
}

TEST_F(UINavigationBarTest, thePageBeforeWithoutATitleIsCalledBack) {
    const auto b = page("B");
    a->peer().setTitle("");
    show({a, b});
    EXPECT_EQ(content().backButton()->title(), "Back");
}

TEST_F(UINavigationBarTest, contentsCrossFadeWhileOnePageGivesWayToAnother) {
    a->navigationItem().setRightBarButtonItems({item("Edit")});
    const auto b = page("B");
    show({a});
    const auto edit = content().rightButtons().at(0);
    const auto shownAlpha = [](const UIView& view) {
        return view.layer().peer().shownValue(LayerProperty::Opacity)[0];
    };
    navigation->pushViewController(b, true);
    auto& back = *content().backButton();
    EXPECT_DOUBLE_EQ(shownAlpha(*edit), 1);
    advance(std::chrono::milliseconds(100));
    const auto progress = AnimationCurve::system().progress(0.2);
    EXPECT_NEAR(shownAlpha(*edit), 1 - progress, 1e-6);
    EXPECT_NEAR(shownAlpha(*content().titleView().peer().superview()), progress, 1e-6);
    settle();
    EXPECT_EQ(edit->peer().window(), nullptr);
    EXPECT_EQ(back.frame().origin, CGPoint());
}

TEST_F(UINavigationBarTest, hasNoBackgroundUntilContentIsBeneathIt) {
    const auto scrollView = showScrollingPage();
    const auto& background = peer().bar().background();
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, -91);
    EXPECT_DOUBLE_EQ(background.layer().peer().number(LayerProperty::Opacity), 0);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, -87});
    EXPECT_DOUBLE_EQ(background.layer().peer().number(LayerProperty::Opacity), 0.5);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, 0});
    EXPECT_DOUBLE_EQ(background.layer().peer().number(LayerProperty::Opacity), 1);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, -120});
    EXPECT_DOUBLE_EQ(background.layer().peer().number(LayerProperty::Opacity), 0);
}

TEST_F(UINavigationBarTest, eachPageKeepsItsBackgroundAboveItWhileOneSlidesOverTheOther) {
    const auto scrollView = showScrollingPage();
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, 300});
    const auto b = page("B");
    navigation->pushViewController(b, true);
    const auto& leaving = peer().bar().leavingBackground();
    const auto& arriving = peer().bar().background();
    EXPECT_DOUBLE_EQ(leaving.layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_DOUBLE_EQ(arriving.layer().peer().number(LayerProperty::Opacity), 0);
    advance(std::chrono::milliseconds(100));
    const auto shown = 390 * AnimationCurve::system().progress(0.2);
    const auto shownWidth = [](const UIView& view) {
        return view.layer().peer().shownValue(LayerProperty::BoundsSize)[0];
    };
    EXPECT_NEAR(shownWidth(leaving), 390 - shown, 1e-6);
    EXPECT_NEAR(shownWidth(arriving), shown, 1e-6);
    for (const auto& part : leaving.peer().subviews())
        EXPECT_NEAR(shownWidth(*part), 390 - shown, 1e-6);
    settle();
    EXPECT_DOUBLE_EQ(leaving.layer().peer().number(LayerProperty::Opacity), 0);
    EXPECT_DOUBLE_EQ(arriving.layer().peer().number(LayerProperty::Opacity), 0);
    EXPECT_EQ(screenFrame(arriving), CGRectMake(0, 0, 390, 91));
    peer().pop(true);
    EXPECT_DOUBLE_EQ(arriving.layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_DOUBLE_EQ(leaving.layer().peer().number(LayerProperty::Opacity), 0);
    settle();
    EXPECT_DOUBLE_EQ(arriving.layer().peer().number(LayerProperty::Opacity), 1);
    EXPECT_EQ(screenFrame(arriving), CGRectMake(0, 0, 390, 91));
}

TEST_F(UINavigationBarTest, theLargeTitleIsScrolledUnderTheBarAndTheSmallOneTakesItsPlace) {
    peer().setPrefersLargeTitles(true);
    const auto scrollView = showScrollingPage();
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, -143);
    EXPECT_DOUBLE_EQ(titleAlpha(), 0);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, -123});
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 47, 390, 76));
    EXPECT_DOUBLE_EQ(peer().bar().background().layer().peer().number(LayerProperty::Opacity), 0);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, -95});
    EXPECT_DOUBLE_EQ(titleAlpha(), 1);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, 0});
    EXPECT_EQ(screenFrame(peer().bar().view()), CGRectMake(0, 47, 390, 44));
    EXPECT_DOUBLE_EQ(peer().bar().background().layer().peer().number(LayerProperty::Opacity), 1);
    peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, -143});
    EXPECT_DOUBLE_EQ(titleAlpha(), 0);
}

TEST_F(UINavigationBarTest, theLargeTitleIsThereAgainAfterTheWayBackAndOnIt) {
    peer().setPrefersLargeTitles(true);
    const auto scrollView = showScrollingPage();
    for (const auto offset : {-143.0, 20.0}) {
        peerOf<UIScrollViewPeer>(*scrollView).setContentOffset({0, offset});
        const auto before = screenFrame(peer().bar().view());
        const auto small = titleAlpha();
        navigation->pushViewController(page("B"), true);
        settle();
        peer().pop(true);
        advance(std::chrono::milliseconds(100));
        EXPECT_DOUBLE_EQ(content().height(), before.size.height);
        settle();
        EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, offset);
        EXPECT_EQ(screenFrame(peer().bar().view()), before);
        EXPECT_DOUBLE_EQ(titleAlpha(), small);
    }
}

TEST_F(UINavigationBarTest, theLargeTitleMovesWithItsPage) {
    peer().setPrefersLargeTitles(true);
    const auto scrollView = showScrollingPage();
    navigation->pushViewController(page("B"), true);
    settle();
    drag({5, 400}, {210, 400}, 40);
    const auto& large = *content().peer().subviews().front();
    ASSERT_EQ(large.isa().name(), "LargeTitleView");
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, -143);
    const auto pageLeft = screenFrame(a->view()).origin.x;
    EXPECT_LT(pageLeft, -40);
    EXPECT_NEAR(screenFrame(large).origin.x, pageLeft, 1e-6);
}

TEST_F(UINavigationBarTest, theLargeTitleComesToRestOpenOrClosed) {
    peer().setPrefersLargeTitles(true);
    const auto scrollView = showScrollingPage();
    const auto dragUpBy = [&](double points) {
        drag({200, 600}, {200, 600 - points - PanGestureRecognizer::slop}, 40);
        advance(std::chrono::milliseconds(300));
        up({200, 600 - points - PanGestureRecognizer::slop});
        settle();
    };
    dragUpBy(20);
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, -143);
    dragUpBy(35);
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, -91);
    dragUpBy(100);
    EXPECT_DOUBLE_EQ(peerOf<UIScrollViewPeer>(*scrollView).contentOffset().y, 9);
}

TEST_F(UINavigationBarTest, theRoomOfTheLargeTitleBelongsToThePageWhenItIsTouched) {
    peer().setPrefersLargeTitles(true);
    show({a});
    EXPECT_EQ(screen.hitTest({200, 120}), &a->view());
    EXPECT_TRUE(screen.hitTest({200, 70})->peer().isDescendantOf(peer().bar().view()));
}

TEST_F(UINavigationBarTest, aBarOfItsOwnShowsItsItemInItsFrame) {
    const auto target = make<BarTarget>();
    const auto item = UINavigationItem::initWithTitle("Colours");
    const auto done =
        UIBarButtonItem::initWithTitle("Done", UIBarButtonItemStyle::Done, *target, "barButtonTapped:");
    item->setLeftBarButtonItem(
        UIBarButtonItem::initWithTitle("Reset", UIBarButtonItemStyle::Plain, *target, "barButtonTapped:"));
    item->setRightBarButtonItem(done);
    const auto bar = showOwnBar(item);
    const auto& barPeer = peerOf<UINavigationBarPeer>(*bar);
    auto& shown = *barPeer.content();
    EXPECT_EQ(screenFrame(*bar), CGRectMake(20, 100, 300, 56));
    EXPECT_EQ(screenFrame(barPeer.background()), CGRectMake(20, 100, 300, 56));
    EXPECT_EQ(shown.titleView().peer().shownText(), "Colours");
    EXPECT_NEAR(CGRectGetMidX(screenFrame(shown.titleView())), 170, 0.5);
    EXPECT_NEAR(CGRectGetMidY(screenFrame(shown.titleView())), 128, 0.5);
    ASSERT_EQ(shown.leftButtons().size(), 1U);
    ASSERT_EQ(shown.rightButtons().size(), 1U);
    EXPECT_TRUE(shown.rightButtons()[0]->item()->content().emphasised);
    EXPECT_FALSE(shown.leftButtons()[0]->item()->content().emphasised);

    tap(*shown.rightButtons()[0]);
    ASSERT_EQ(target->senders.size(), 1U);
    EXPECT_EQ(target->senders[0], done);
    tap(*shown.leftButtons()[0]);
    EXPECT_EQ(target->senders.size(), 2U);

    item->setLeftBarButtonItem(nullptr);
    layOut();
    EXPECT_TRUE(shown.leftButtons().empty());
}

TEST_F(UINavigationBarTest, aBarOfItsOwnShowsTheLastItemOrNone) {
    const auto bar = showOwnBar(UINavigationItem::initWithTitle("First"));
    bar->setItems({UINavigationItem::initWithTitle("Second"), UINavigationItem::initWithTitle("Third")});
    layOut();
    const auto& barPeer = peerOf<UINavigationBarPeer>(*bar);
    EXPECT_EQ(barPeer.content()->titleView().peer().shownText(), "Third");
    const auto parts = bar->subviews().size();
    bar->setItems({});
    EXPECT_EQ(barPeer.content(), nullptr);
    EXPECT_EQ(bar->subviews().size(), parts - 1);
}

TEST_F(UINavigationBarTest, aBarOfItsOwnIsAsHighAsARow) {
    const auto bar = make<UINavigationBar>();
    EXPECT_EQ(bar->peer().intrinsicHeight(), 44);
    EXPECT_EQ(bar->peer().sizeThatFits({200, 0}), (CGSize{200, 44}));
}
