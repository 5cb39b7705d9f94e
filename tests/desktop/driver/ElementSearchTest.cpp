#include "ElementSearch.h"

#include "DriverFixture.h"
#include "RectGeometry.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UIViewPeer.h"

namespace {

class ElementSearchTest : public DriverFixture {
protected:
    /// A scroll view that fills the window, with labels of that text at those heights in its contents.
    Ref<UIScrollView> addScrollView(const std::vector<double>& tops, const std::string& text) {
        auto scroll = make<UIScrollView>();
        scroll->setFrame(CGRectMake(0, 100, 390, 600));
        peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 5000});
        window->addSubview(scroll);
        for (const auto top : tops)
            static_cast<void>(addLabel(CGRectMake(20, top, 200, 44), text, *scroll));
        return scroll;
    }

    [[nodiscard]] ElementSearch search(const std::string& label) const { return {*window, label}; }

    /// Where the view is in its superview; nothing for no view.
    static std::optional<double> topOf(const Ref<UIView>& view) {
        return view ? std::optional(view->frame().origin.y) : std::nullopt;
    }

    static bool isWithin(const UIView& view, const UIView& scroll) {
        const auto inner = view.peer().convertToScreen(view.bounds());
        const auto outer = scroll.peer().convertToScreen(scroll.bounds());
        return inner.origin.y >= outer.origin.y && CGRectGetMaxY(inner) <= CGRectGetMaxY(outer);
    }
};

} // namespace

TEST_F(ElementSearchTest, FindsNothingWhereNothingIsCalledSo) {
    const auto label = addLabel(CGRectMake(0, 0, 100, 20), "Apply", *window);
    for (const auto* const other : {"apply", "Appl", "Apply "}) {
        EXPECT_FALSE(search(other).first()) << other;
        EXPECT_FALSE(search(other).numbered(1)) << other;
    }
}

TEST_F(ElementSearchTest, FindsTheFirstInTheOrderOfTheViews) {
    const auto first = addLabel(CGRectMake(0, 300, 100, 20), "Apply", *window);
    const auto second = addLabel(CGRectMake(0, 100, 100, 20), "Apply", *window);
    EXPECT_EQ(search("Apply").first(), Ref<UIView>(first));
    EXPECT_EQ(search("Apply").numbered(2), Ref<UIView>(second));
    EXPECT_FALSE(search("Apply").numbered(3));
}

TEST_F(ElementSearchTest, LeavesOutWhatCannotBeSeen) {
    const auto holder = make<UIView>();
    holder->setFrame(CGRectMake(0, 0, 200, 200));
    window->addSubview(holder);
    const auto label = addLabel(CGRectMake(0, 0, 100, 20), "Apply", *holder);
    holder->setAlpha(0);
    EXPECT_FALSE(search("Apply").first());
    holder->setAlpha(1);
    holder->peer().setHidden(true);
    EXPECT_FALSE(search("Apply").first());
    holder->peer().setHidden(false);
    EXPECT_TRUE(search("Apply").first());
}

TEST_F(ElementSearchTest, OfTwoWithinEachOtherTheOuterOneCounts) {
    auto presses = 0;
    const auto button = addButton(CGRectMake(20, 100, 200, 44), "Apply", presses);
    const auto label = addLabel(CGRectMake(0, 0, 200, 44), "Apply", *button);
    EXPECT_EQ(search("Apply").first(), Ref<UIView>(button));
    EXPECT_FALSE(search("Apply").numbered(2));
}

TEST_F(ElementSearchTest, ScrollsToWhatIsFurtherDown) {
    const auto scroll = addScrollView({4000}, "Far");
    const auto found = search("Far").first();
    ASSERT_TRUE(found);
    EXPECT_TRUE(isWithin(*found, *scroll));
    EXPECT_GT(peerOf<UIScrollViewPeer>(*scroll).contentOffset().y, 3000);
}

TEST_F(ElementSearchTest, ScrollsUpToo) {
    const auto scroll = addScrollView({50}, "Top");
    peerOf<UIScrollViewPeer>(*scroll).setContentOffset({0, 4000});
    const auto found = search("Top").first();
    ASSERT_TRUE(found);
    EXPECT_TRUE(isWithin(*found, *scroll));
}

TEST_F(ElementSearchTest, NumbersCountFromTheTopOfWhatScrollsOnAndThenTheOthers) {
    const auto other = addLabel(CGRectMake(0, 10, 100, 20), "Row", *window);
    const auto scroll = addScrollView({3000, 40, 1500}, "Row");
    EXPECT_EQ(topOf(search("Row").numbered(1)), 40);
    EXPECT_EQ(topOf(search("Row").numbered(2)), 1500);
    EXPECT_EQ(topOf(search("Row").numbered(3)), 3000);
    EXPECT_EQ(search("Row").numbered(4), Ref<UIView>(other));
    EXPECT_FALSE(search("Row").numbered(5));
    EXPECT_FALSE(search("Row").numbered(2'000'000'000));
}

TEST_F(ElementSearchTest, AVainSearchLeavesTheContentsWhereTheyWere) {
    const auto scroll = addScrollView({4000}, "Far");
    peerOf<UIScrollViewPeer>(*scroll).setContentOffset({0, 1234});
    EXPECT_FALSE(search("Elsewhere").first());
    EXPECT_FALSE(search("Far").numbered(2));
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*scroll).contentOffset().y, 1234);
}

TEST_F(ElementSearchTest, ContentsWithoutRoomOrWithoutEndAreSearchedInTime) {
    const auto scroll = addScrollView({10}, "Row");
    scroll->setFrame(CGRectMake(0, 100, 390, 0));
    EXPECT_FALSE(search("Elsewhere").first());
    scroll->setFrame(CGRectMake(0, 100, 390, 600));
    peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 1'000'000});
    EXPECT_FALSE(search("Elsewhere").first());
    EXPECT_EQ(topOf(search("Row").first()), 10);
}
