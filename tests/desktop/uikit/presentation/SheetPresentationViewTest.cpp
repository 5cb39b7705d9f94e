#include "presentation/SheetPresentationView.h"

#include "DesktopColor.h"
#include "RectGeometry.h"
#include "UIKit/UINavigationBar.h"
#include "UIKit/UITextField.h"
#include "presentation/PresentationFixture.h"
#include "presentation/SheetContent.h"
#include "screen/Compositor.h"
#include "scrolling/UIScrollViewPeer.h"
#include "text/UITextFieldPeer.h"
#include "typing/TextFieldContent.h"

#include <utility>

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class SheetPresentationViewTest : public PresentationFixture {
protected:
    using PresentationFixture::PresentationFixture;

    /// A controller that has been presented and is there.
    Ref<LoggedPage> presented(const std::string& name = "B") {
        auto controller = page(name);
        present(controller);
        return controller;
    }

    [[nodiscard]] CGRect root() const { return shownFrame(navigation->view()); }
};

class PadSheetTest : public SheetPresentationViewTest {
protected:
    PadSheetTest() : SheetPresentationViewTest(Screen::Options{.idiom = Idiom::Pad, .scale = 2}) {}
};

/// A controller whose peer tells of what it contains.
class TellingPeer final : public UIViewControllerPeer, public SheetContent {
public:
    // SheetContent:
    [[nodiscard]] std::string sheetTitle() const override { return "What's New"; }

    [[nodiscard]] std::string sheetDetail() const override { return "in this version"; }

    [[nodiscard]] std::string sheetSymbol() const override { return "sparkles"; }

    [[nodiscard]] std::vector<Presented::Item> sheetItems() const override {
        return {{.title = "First", .description = "One", .symbol = "gear", .tint = {}, .tappable = true}};
    }
};

class TellingController final : public UIViewController {
public:
    TellingController() : UIViewController(std::make_unique<TellingPeer>()) {}
};

class FieldPeer final : public UIViewPeer, public TextFieldContent {
public:
    // TextFieldContent:
    [[nodiscard]] std::string fieldPlaceholder() const override { return "Name"; }

    [[nodiscard]] std::string fieldText() const override { return "Backup"; }

    [[nodiscard]] bool fieldIsFirstResponder() const override { return true; }
};

class FieldView final : public UIView {
public:
    FieldView() : UIView(std::make_unique<FieldPeer>()) {}
};

} // namespace

TEST_F(SheetPresentationViewTest, isACardWhosePresenterStepsBack) {
    const auto sheet = presented();
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(0, 57, 390, 787));
    EXPECT_NEAR(root().origin.x, 10, 1e-9);
    EXPECT_NEAR(root().origin.y, 47, 1e-9);
    EXPECT_NEAR(root().size.width, 370, 1e-9);
    EXPECT_DOUBLE_EQ(navigation->view().layer().cornerRadius(), 10);
    EXPECT_FALSE(navigation->view().layer().peer().roundBottom) << "would shine through the card";
    EXPECT_EQ(sheet->view().peer().safeAreaInsets(),
              (UIEdgeInsets{.top = 0, .left = 0, .bottom = 34, .right = 0}));
    EXPECT_TRUE(sheet->view().peer().traits().elevated);
    EXPECT_FALSE(navigation->view().peer().traits().elevated);
}

TEST_F(SheetPresentationViewTest, leavesThePresenterAsItWasFound) {
    const auto sheet = presented();
    dismissBy(*sheet, true);
    settle();
    EXPECT_EQ(root(), window->bounds());
    EXPECT_DOUBLE_EQ(navigation->view().layer().cornerRadius(), 0);
    EXPECT_FALSE(navigation->view().layer().peer().masksToBounds);
    EXPECT_TRUE(navigation->view().layer().peer().roundBottom);
    EXPECT_EQ(navigation->view().peer().safeAreaInsets().top, 47);
}

TEST_F(SheetPresentationViewTest, risesFromBelowTheScreenAlongTheSystemsCurve) {
    const auto sheet = page("B");
    present(sheet, true);
    auto last = 0;
    for (const auto time : {0, 100, 250, 350, 500}) {
        advance(milliseconds(time - std::exchange(last, time)));
        const auto part = AnimationCurve::system().progress(time / 500.0);
        EXPECT_NEAR(shownFrame(sheetOf(sheet).shownView()).origin.y, 844 - part * 787, 1e-6) << time;
        EXPECT_NEAR(root().origin.y, 47 * part, 1e-6) << time;
    }
}

TEST_F(SheetPresentationViewTest, thePresentersCornersAreTheScreensOnesUntilItStepsBack) {
    const auto sheet = page("B");
    const auto corner = [this] {
        return navigation->view().layer().peer().shownValue(LayerProperty::CornerRadius).front();
    };
    present(sheet, true);
    auto last = 0;
    for (const auto time : {0, 100, 250, 500}) {
        advance(milliseconds(time - std::exchange(last, time)));
        const auto part = AnimationCurve::system().progress(time / 500.0);
        EXPECT_NEAR(corner(), 47.3 + part * (10 - 47.3), 1e-6) << time;
    }
    sheetOf(sheet).drag(787 / 2.0);
    EXPECT_NEAR(corner(), (47.3 + 10) / 2, 1e-6);
    sheetOf(sheet).drag(0);
    const auto second = page("C");
    presentOn(*sheet, second);
    sheetOf(second).drag(787);
    EXPECT_DOUBLE_EQ(sheetOf(sheet).shownView().layer().cornerRadius(), 10);
}

TEST_F(SheetPresentationViewTest, aSecondOneMovesTheFirstUp) {
    const auto first = presented();
    const auto second = page("C");
    presentOn(*first, second);
    const auto firstCard = shownFrame(sheetOf(first).shownView());
    EXPECT_NEAR(firstCard.origin.y, 47, 1e-9);
    EXPECT_NEAR(firstCard.size.width, 370, 1e-9);
    EXPECT_EQ(screenFrame(second->view()), CGRectMake(0, 57, 390, 787));
    dismissBy(*second, false);
    EXPECT_EQ(shownFrame(sheetOf(first).shownView()), CGRectMake(0, 57, 390, 787));
}

TEST_F(SheetPresentationViewTest, allIsInItsPlaceAfterTheScreensSizeHasChanged) {
    const auto sheet = presented();
    screen.setSize({430, 932});
    screen.layoutIfNeeded();
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(0, 57, 430, 875));
    EXPECT_NEAR(root().size.width, 410, 1e-9);
    EXPECT_NEAR(root().origin.y, 47, 1e-9);
    dismissBy(*sheet, false);
    EXPECT_EQ(root(), window->bounds());
}

TEST_F(SheetPresentationViewTest, dimsTheTintOfWhatItCovers) {
    const auto tint = [](const UIView& view) {
        return DesktopColor::resolve(view.peer().tintColor(), view.peer().traits());
    };
    const auto& covered = peer().top()->view();
    const auto own = tint(covered);
    const auto sheet = presented();
    EXPECT_NE(tint(covered), own);
    EXPECT_EQ(tint(sheet->view()), own);
    dismissBy(*sheet, true);
    EXPECT_EQ(tint(covered), own);
}

TEST_F(SheetPresentationViewTest, tellsWhereThePresenterIsThatHasLeftBlackAroundIt) {
    const auto sheet = page("B");
    present(sheet, true);
    const auto shape = [this] { return top()->steppedBack().value(); };
    const auto corner = [this] {
        return navigation->view().layer().peer().shownValue(LayerProperty::CornerRadius).front();
    };
    EXPECT_EQ(shape().frame, window->bounds());
    advance(milliseconds(50));
    EXPECT_GT(shape().frame.origin.y, 0);
    EXPECT_LT(shape().frame.origin.y, 47);
    EXPECT_EQ(shape().frame, root());
    EXPECT_NEAR(shape().cornerRadius, corner() * root().size.width / 390, 1e-9);
    settle();
    EXPECT_NEAR(shape().frame.origin.y, 47, 1e-9);
    EXPECT_NEAR(shape().cornerRadius, 10 * 370 / 390.0, 1e-9);
    drag({195, 70}, {195, 600});
    EXPECT_EQ(shape().frame, root());
    EXPECT_LT(shape().frame.origin.y, 20);
    finger.touch(TouchPhase::Cancelled, {});
    dismissBy(*sheet, true);
    EXPECT_EQ(top(), nullptr);
}

TEST_F(SheetPresentationViewTest, thePresenterIsWhereTheWindowHasBeenMovedTo) {
    present(page("B"), false);
    settle();
    window->peer().setTransform(AffineTransform::translation(0, 100));
    EXPECT_NEAR(top()->steppedBack()->frame.origin.y, 147, 1e-9);
}

TEST_F(SheetPresentationViewTest, blursNothingOfTheBlackBesideThePresenter) {
    navigation->view().setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    const auto sheet = page("B");
    sheet->view().setBackgroundColor(UIColor::clearColor());
    sheet->view().layer().peer().backdrop = Backdrop{.blurRadius = 30, .saturation = 1};
    present(sheet);
    Compositor compositor(screen);
    const auto& picture = compositor.render();
    const auto lightness = [&picture](int x) { return picture.pixelColor(x, 3 * 500).lightness(); };
    for (const auto x : {0, 10, 30, 60, 1169})
        EXPECT_NEAR(lightness(x), lightness(585), 1) << x;
    EXPECT_EQ(picture.pixelColor(0, 3 * 57 + 3).lightness(), 0) << "beside the card's round corner";
}

// A finger.

TEST_F(SheetPresentationViewTest, followsTheFingerDownWithAllThatIsBehindIt) {
    const auto sheet = presented();
    drag({195, 70}, {195, 70 + 10 + 787.0 / 4});
    EXPECT_NEAR(shownFrame(sheetOf(sheet).shownView()).origin.y, 57 + 787.0 / 4, 1e-6);
    EXPECT_NEAR(sheetOf(sheet).openness(), 0.75, 1e-9);
    EXPECT_NEAR(root().origin.y, 47 * 0.75, 1e-6);
}

namespace {

struct Release {
    double distance;
    bool fast;
    bool modal;
    bool leaves;
};

} // namespace

TEST_F(SheetPresentationViewTest, leavesOrSpringsBackByHowItWasLetGo) {
    for (const auto& [distance, fast, modal, leaves] :
         {Release{100, false, false, false}, Release{500, false, false, true},
          Release{200, true, false, true}, Release{500, false, true, false}, Release{200, true, true, false},
          Release{-60, true, false, false}}) {
        const auto sheet = page("B");
        sheet->setModalInPresentation(modal);
        present(sheet);
        const CGPoint end{195, 100 + distance};
        drag({195, 100}, end, fast ? 5 : 40);
        if (!fast)
            advance(milliseconds(200));
        up(end);
        EXPECT_EQ(top() == nullptr, leaves) << distance;
        settle();
        EXPECT_EQ(navigation->presentedViewController() == nullptr, leaves) << distance;
        if (!leaves) {
            EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(0, 57, 390, 787));
            EXPECT_NEAR(root().origin.y, 47, 1e-9);
        }
        dismissBy(*navigation, false);
    }
}

TEST_F(SheetPresentationViewTest, leavesFromWhereTheFingerLetGo) {
    const auto sheet = presented();
    takeLog();
    drag({195, 70}, {195, 600}, 20);
    const auto before = shownFrame(sheetOf(sheet).shownView()).origin.y;
    up({195, 600});
    EXPECT_NEAR(shownFrame(sheetOf(sheet).shownView()).origin.y, before, 1e-6);
    EXPECT_THAT(takeLog(), ElementsAre("viewWillDisappear B"));
    settle();
    EXPECT_THAT(takeLog(), ElementsAre("viewDidDisappear B"));
}

TEST_F(SheetPresentationViewTest, resistsTheFingerWhileTheUserMayNotDismissIt) {
    const auto sheet = presented();
    sheet->setModalInPresentation(true);
    drag({195, 70}, {195, 480});
    const auto moved = shownFrame(sheetOf(sheet).shownView()).origin.y - 57;
    EXPECT_NEAR(moved, 104, 3) << "of the 400 that the finger drew it, and a quarter of its height at most";
    finger.touch(TouchPhase::Cancelled, {});
    const auto& card = sheetOf(sheet).shownView().layer().peer();
    advance(milliseconds(299));
    EXPECT_TRUE(card.isAnimating());
    advance(milliseconds(2));
    EXPECT_FALSE(card.isAnimating());
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(0, 57, 390, 787));
}

TEST_F(SheetPresentationViewTest, isStretchedALittleByAFingerThatMovesUp) {
    const auto sheet = presented();
    drag({195, 600}, {195, 200});
    const auto card = shownFrame(sheetOf(sheet).shownView());
    EXPECT_LT(card.origin.y, 56);
    EXPECT_GT(card.origin.y, 44);
    EXPECT_DOUBLE_EQ(CGRectGetMaxY(card), 844);
    up({195, 200});
    settle();
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(0, 57, 390, 787));
}

TEST_F(SheetPresentationViewTest, aSheetThatIsPresentedAboveEndsTheDrag) {
    const auto sheet = presented();
    drag({195, 70}, {195, 300});
    const auto second = page("C");
    presentOn(*sheet, second, true);
    up({195, 700});
    settle();
    EXPECT_EQ(sheet->presentedViewController(), second);
    EXPECT_NEAR(shownFrame(sheetOf(sheet).shownView()).origin.y, 47, 1e-9);
}

TEST_F(SheetPresentationViewTest, isDismissedByCodeUnderTheFinger) {
    const auto sheet = presented();
    drag({195, 70}, {195, 300});
    dismissBy(*sheet, true);
    finger.touch(TouchPhase::Moved, {195, 100});
    up({195, 100});
    settle();
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
    EXPECT_EQ(root(), window->bounds());
}

TEST_F(SheetPresentationViewTest, goesWithItsApplicationUnderTheFinger) {
    const Weak<UIViewController> watched(presented());
    drag({195, 70}, {195, 300});
    window->setRootViewController(nullptr);
    EXPECT_EQ(watched.strong(), nullptr);
    up({195, 600});
    settle();
}

TEST_F(SheetPresentationViewTest, aTapAboveTheCardOfAPhoneDoesNothing) {
    const auto sheet = presented();
    tap(CGPoint{195, 52});
    settle();
    EXPECT_EQ(navigation->presentedViewController(), sheet);
}

// A tablet.

TEST_F(PadSheetTest, isACardInTheMiddleAndThePresenterStays) {
    const auto sheet = page("B");
    present(sheet);
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(54, 115, 712, 950));
    EXPECT_EQ(root(), window->bounds());
    EXPECT_EQ(sheet->view().peer().safeAreaInsets(), UIEdgeInsets());
    EXPECT_FALSE(sheet->view().peer().traits().compactWidth);
    EXPECT_FALSE(top()->steppedBack());
}

TEST_F(PadSheetTest, aFormSheetIsSmallerAndNarrow) {
    const auto sheet = page("B");
    sheet->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    present(sheet);
    EXPECT_EQ(screenFrame(sheet->view()), CGRectMake(140, 280, 540, 620));
    EXPECT_TRUE(sheet->view().peer().traits().compactWidth);
    EXPECT_EQ(top()->details()->style, "formSheet");
}

TEST_F(PadSheetTest, aFormSheetMovesOutOfTheKeyboardsWayAsTheKeyboardMoves) {
    const auto sheet = page("B");
    sheet->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    present(sheet);
    AnimationGroup::run({.duration = milliseconds(250), .curve = AnimationCurve::linear()},
                        [this] { screen.setKeyboardHeight(320); }, {});
    EXPECT_EQ(screenFrame(sheet->view()).origin.y, 132);
    advance(milliseconds(125));
    EXPECT_NEAR(shownFrame(sheet->view()).origin.y, (280 + 132) / 2.0, 0.5);
    screen.setKeyboardHeight(0);
    settle();
    EXPECT_EQ(screenFrame(sheet->view()).origin.y, 280);
}

TEST_F(PadSheetTest, aFieldThatIsEditedBringsTheKeyboardAndTheSheetOutOfItsWay) {
    const auto sheet = page("B");
    sheet->setModalPresentationStyle(UIModalPresentationStyle::FormSheet);
    const auto field = makeWith<UITextField>(&UIView::initWithFrame, CGRectMake(20, 560, 300, 40));
    sheet->view().addSubview(field);
    present(sheet);
    tap(*field);
    settle();
    EXPECT_TRUE(peerOf<UITextFieldPeer>(*field).fieldIsFirstResponder());
    EXPECT_GT(screen.keyboardHeight(), 0);
    EXPECT_LE(CGRectGetMaxY(screenFrame(*field)), 1180 - screen.keyboardHeight());
    sheet->dismissViewControllerAnimated(true, {});
    settle();
    EXPECT_FALSE(peerOf<UITextFieldPeer>(*field).fieldIsFirstResponder());
    EXPECT_EQ(screen.keyboardHeight(), 0);
}

TEST_F(PadSheetTest, aTapOutsideDismissesItUnlessTheUserMayNot) {
    const auto sheet = page("B");
    sheet->setModalInPresentation(true);
    present(sheet);
    tap(CGPoint{20, 600});
    settle();
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    sheet->setModalInPresentation(false);
    tap(CGPoint{400, 600}); // within
    settle();
    EXPECT_EQ(navigation->presentedViewController(), sheet);
    tap(CGPoint{20, 600});
    settle();
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
}

// What it tells.

TEST_F(SheetPresentationViewTest, tellsOfItself) {
    const auto sheet = page("B");
    present(sheet);
    EXPECT_EQ(top()->kind(), "sheet");
    EXPECT_EQ(top()->title(), "B");
    const auto details = top()->details();
    ASSERT_TRUE(details);
    EXPECT_EQ(details->controllerClass, "UIViewController");
    EXPECT_EQ(details->style, "pageSheet");
    EXPECT_TRUE(details->swipeDismissable);
    EXPECT_EQ(details->barItem, nullptr);
    EXPECT_THAT(details->items, IsEmpty());
    sheet->setModalInPresentation(true);
    EXPECT_FALSE(top()->details()->swipeDismissable);
}

TEST_F(SheetPresentationViewTest, tellsOfThePageOfItsNavigationController) {
    const auto inner = make<UINavigationController>();
    const auto telling = make<TellingController>();
    const auto field = make<FieldView>();
    telling->view().addSubview(field);
    peerOf<UINavigationControllerPeer>(*inner).push(telling, false);
    present(inner);
    const auto details = top()->details();
    ASSERT_TRUE(details);
    EXPECT_EQ(details->controllerClass, "UINavigationController");
    EXPECT_EQ(top()->title(), "What's New");
    EXPECT_EQ(details->detail, "in this version");
    EXPECT_EQ(details->symbol, "sparkles");
    ASSERT_EQ(details->items.size(), 1U);
    EXPECT_EQ(details->items[0].title, "First");
    EXPECT_TRUE(details->items[0].tappable);
    EXPECT_EQ(details->barItem.get(), &telling->navigationItem());
    ASSERT_EQ(details->fields.size(), 1U);
    EXPECT_EQ(details->fields[0].placeholder, "Name");
    EXPECT_EQ(details->fields[0].text, "Backup");
    EXPECT_TRUE(details->fields[0].isFirstResponder);
}

TEST_F(SheetPresentationViewTest, tellsOfTheBarThatItsPageHasInItsView) {
    const auto sheet = page("B");
    const auto bar = make<UINavigationBar>();
    sheet->view().addSubview(bar);
    present(sheet);
    EXPECT_EQ(top()->details()->barItem, nullptr) << "the bar shows nothing yet";
    const auto item = UINavigationItem::initWithTitle("");
    bar->setItems({item});
    EXPECT_EQ(top()->details()->barItem, item);
}

TEST_F(SheetPresentationViewTest, isDismissedFromOutsideUnlessTheUserMayNot) {
    const auto sheet = presented();
    sheet->setModalInPresentation(true);
    top()->dismissPresented();
    EXPECT_NE(top(), nullptr);
    sheet->setModalInPresentation(false);
    top()->dismissPresented();
    EXPECT_EQ(top(), nullptr);
    settle();
    EXPECT_EQ(navigation->presentedViewController(), nullptr);
}
