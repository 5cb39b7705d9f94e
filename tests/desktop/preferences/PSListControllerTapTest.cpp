#include "CALayerPeer.h"
#include "ObjectiveC/Class.h"
#include "PageFixture.h"
#include "RectGeometry.h"
#include "navigation/UINavigationControllerPeer.h"
#include "tables/UITableViewCellPeer.h"

#include <cmath>

namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

constexpr double pressedRed = 209.0 / 255;

class PSListControllerTapTest : public PageFixture {
protected:
    /// Of the row's background, as it is seen now.
    [[nodiscard]] double shownRed(const std::string& id) const {
        const auto& slice = cell(id).peer().subviews().front()->peer();
        return slice.subviews().front()->layer().peer().shownValue(LayerProperty::BackgroundColor)[0];
    }

    /// A finger that comes down and moves; it stays down.
    void drag(CGPoint from, CGPoint to) {
        finger.touch(TouchPhase::Began, from);
        constexpr int steps = 20;
        for (int step = 1; step <= steps; ++step) {
            advance(16ms);
            const auto part = static_cast<double>(step) / steps;
            finger.touch(TouchPhase::Moved, {std::lerp(from.x, to.x, part), std::lerp(from.y, to.y, part)});
        }
    }
};

class DetailPage : public PSListController {};

class NoPage : public NSObject {};

class RefusingPage : public PSListController {
public:
    [[nodiscard]] bool init() override { return false; }
};

const Class detailClass = Class::define<DetailPage, PSListController>("TapTestDetailPage");
const Class noPageClass = Class::define<NoPage>("TapTestNoPage");
const Class refusingClass = Class::define<RefusingPage, PSListController>("TapTestRefusingPage");

const UINavigationControllerPeer::Stack& stackOf(const UINavigationController& navigation) {
    return peerOf<UINavigationControllerPeer>(navigation).stack();
}

} // namespace

TEST_F(PSListControllerTapTest, AButtonPerformsItsAction) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:")),
               row("PSButtonCell", "b", text("buttonAction", "tappedPlainly"))});
    show();
    tap("a");
    tap("b");
    EXPECT_EQ(page_->events, (Texts{"tapped a", "tapped"}));
}

TEST_F(PSListControllerTapTest, TheRowFadesAfterItsAction) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:"))});
    show();
    tap("a");
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
    EXPECT_FALSE(peerOf<UITableViewCellPeer>(cell("a")).isSelected());
}

TEST_F(PSListControllerTapTest, ALinkPushesItsDetailAndHandsTheRowOver) {
    writeList({row("PSLinkCell", "a", text("detail", "TapTestDetailPage"))});
    show();
    tap("a");
    ASSERT_EQ(stackOf(*navigation_).size(), 2U);
    const auto detail = dynamicCast<DetailPage>(stackOf(*navigation_).back());
    ASSERT_TRUE(detail);
    EXPECT_EQ(peerOf<PSListControllerPeer>(*detail).specifier().get(), &specifier("a"));
    EXPECT_EQ(detail->peer().title(), "Row a");
}

TEST_F(PSListControllerTapTest, TheRowStaysSelectedUntilTheDetailIsGone) {
    writeList({row("PSLinkCell", "a", text("detail", "TapTestDetailPage"))});
    show();
    tap("a");
    advance(1s);
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 0}));
    peerOf<UINavigationControllerPeer>(*navigation_).pop(true);
    advance(1s);
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSListControllerTapTest, TheSelectionFadesWithTheWayBack) {
    writeList({row("PSLinkCell", "a", text("detail", "TapTestDetailPage"))});
    show();
    tap("a");
    advance(1s);
    EXPECT_NEAR(shownRed("a"), pressedRed, 1e-6);
    drag({5, 400}, {210, 400});
    EXPECT_NEAR(shownRed("a"), (pressedRed + 1) / 2, 0.02) << "half way, when the slop is left out";
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 0}));
    advance(200ms);
    finger.touch(TouchPhase::Ended, {230, 400});
    advance(100ms);
    EXPECT_GT(shownRed("a"), (pressedRed + 1) / 2);
    EXPECT_LT(shownRed("a"), 1);
    advance(1s);
    EXPECT_EQ(shownRed("a"), 1);
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSListControllerTapTest, AWayBackThatIsGivenUpLeavesTheRowSelected) {
    writeList({row("PSLinkCell", "a", text("detail", "TapTestDetailPage"))});
    show();
    tap("a");
    advance(1s);
    drag({5, 400}, {150, 400});
    advance(200ms);
    finger.touch(TouchPhase::Ended, {150, 400});
    advance(1s);
    EXPECT_NEAR(shownRed("a"), pressedRed, 1e-6);
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 0}));
}

TEST_F(PSListControllerTapTest, ARowWhoseActionOpensAnotherPageStaysSelectedUntilTheWayBack) {
    writeList({row("PSLinkCell", "a", text("action", "tapped:"))});
    show();
    page_->tapAction = [this] { navigation_->pushViewController(make<UIViewController>(), true); };
    tap("a");
    advance(1s);
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 0}));
    EXPECT_NEAR(shownRed("a"), pressedRed, 1e-6);
    peerOf<UINavigationControllerPeer>(*navigation_).pop(true);
    advance(1s);
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSListControllerTapTest, AListThatKeepsItsSelectionHasTheLastRowTappedSelected) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:")),
               row("PSButtonCell", "b", text("action", "tapped:"))});
    show();
    peer().setKeepsSelection(true);
    tap("a");
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 0}));
    EXPECT_NEAR(shownRed("a"), pressedRed, 1e-6);
    tap("b");
    advance(1s);
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{0, 1}));
    EXPECT_EQ(shownRed("a"), 1);
}

TEST_F(PSListControllerTapTest, ALinkWithoutDetailPerformsItsAction) {
    writeList({row("PSLinkCell", "a", text("action", "tapped:"))});
    show();
    tap("a");
    EXPECT_EQ(page_->events, (Texts{"tapped a"}));
    EXPECT_EQ(stackOf(*navigation_).size(), 1U);
}

TEST_F(PSListControllerTapTest, ADetailThatIsNoPageIsLoggedAndPushesNothing) {
    for (const auto* const name : {"TapTestNowhere", "TapTestNoPage", "TapTestRefusingPage"}) {
        writeList({row("PSLinkCell", "a", text("detail", name))});
        show();
        tap("a");
        EXPECT_EQ(stackOf(*navigation_).size(), 1U);
        EXPECT_EQ(log(),
                  (Texts{std::string("Row a: 'detail' names ") + name + ", which is no class of a page."}));
        EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
    }
}

TEST_F(PSListControllerTapTest, OtherRowsCannotBeTapped) {
    writeList({keptRow("PSSwitchCell", "switch", text("action", "tapped:")),
               row("PSStaticTextCell", "static"), row("PSTitleValueCell", "value"),
               row("PSFancyCell", "fancy"),
               row("PSButtonCell", "off", text("action", "tapped:") + no("enabled"))});
    show();
    for (const auto* const id : {"static", "value", "fancy", "off"})
        tap(id);
    const auto frame = peer().table().view().peer().convertToScreen(listRow("switch").frame);
    finger.touch(TouchPhase::Began, {60, CGRectGetMidY(frame)});
    finger.touch(TouchPhase::Ended, {60, CGRectGetMidY(frame)});
    EXPECT_TRUE(page_->events.empty());
    EXPECT_EQ(peer().table().selectedRow(), std::nullopt);
}

TEST_F(PSListControllerTapTest, AnyRowWithAnActionCanBeTapped) {
    writeList({row("PSStaticTextCell", "static", text("action", "tapped:")),
               row("PSFancyCell", "fancy", text("action", "tapped:"))});
    show();
    tap("static");
    tap("fancy");
    EXPECT_EQ(page_->events, (Texts{"tapped static", "tapped fancy"}));
}

TEST_F(PSListControllerTapTest, AnActionThatNobodyAnswersIsLogged) {
    writeList({row("PSButtonCell", "a", text("action", "nobody:"))});
    show();
    tap("a");
    EXPECT_EQ(log().size(), 1U);
}
