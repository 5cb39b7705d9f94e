#include "presentation/SheetPanGestureRecognizer.h"

#include "UIKit/UIControl.h"
#include "presentation/PresentationFixture.h"
#include "scrolling/UIScrollViewPeer.h"

#include <optional>
#include <ostream>

namespace {

/// What moves for a finger in a scroll view in a sheet.
struct Draw {
    const char* name;
    std::optional<double> offset; ///< of the scroll view; nothing: the finger is beside it
    CGPoint movement;
    bool sheetMoves;
    bool contentMoves;
};

void PrintTo(const Draw& draw, std::ostream* stream) {
    *stream << draw.name;
}

class SheetPanTest : public PresentationFixture, public testing::WithParamInterface<Draw> {
protected:
    SheetPanTest() {
        present(sheet);
        scroll->setFrame(CGRectMake(0, 200, 390, 587));
        peerOf<UIScrollViewPeer>(*scroll).setContentSize({390, 3000});
        sheet->view().addSubview(scroll);
        screen.layoutIfNeeded();
    }

    [[nodiscard]] double cardTop() const { return shownFrame(sheetOf(sheet).shownView()).origin.y; }

    Ref<LoggedPage> sheet = page("B");
    Ref<UIScrollView> scroll = make<UIScrollView>();
};

} // namespace

TEST_P(SheetPanTest, decidesWhetherTheSheetOrItsContentMoves) {
    const auto& [name, offset, movement, sheetMoves, contentMoves] = GetParam();
    const auto before = offset.value_or(0);
    peerOf<UIScrollViewPeer>(*scroll).setContentOffset({0, before});
    const CGPoint from{195, offset ? 500.0 : 150.0};
    drag(from, {from.x + movement.x, from.y + movement.y});
    EXPECT_EQ(cardTop() != 57, sheetMoves);
    EXPECT_EQ(peerOf<UIScrollViewPeer>(*scroll).contentOffset().y != before, contentMoves);
}

INSTANTIATE_TEST_SUITE_P(Draws, SheetPanTest,
                         testing::Values(Draw{"downAtTheTop", 0, {0, 100}, true, false},
                                         Draw{"upAtTheTop", 0, {0, -100}, false, true},
                                         Draw{"downFurtherDown", 400, {0, 100}, false, true},
                                         Draw{"upFurtherDown", 400, {0, -100}, false, true},
                                         Draw{"downByALittle", 0, {0, 9}, false, false},
                                         Draw{"asideAtTheTop", 0, {100, 20}, false, false},
                                         Draw{"downBesideTheContent", {}, {0, 100}, true, false},
                                         Draw{"upBesideTheContent", {}, {0, -100}, true, false},
                                         Draw{"asideBesideTheContent", {}, {100, 0}, false, false}),
                         [](const auto& one) { return one.param.name; });

TEST_F(SheetPanTest, takesTheTouchFromAControl) {
    const auto control = make<UIControl>();
    control->setFrame(CGRectMake(0, 0, 390, 200));
    sheet->view().addSubview(control);
    finger.touch(TouchPhase::Began, {195, 150});
    EXPECT_TRUE(control->isTracking());
    drag({195, 150}, {195, 250});
    EXPECT_FALSE(control->isTracking());
    EXPECT_NE(cardTop(), 57);
}

TEST_F(SheetPanTest, leavesContentThatMovesToTheFingerThatStopsIt) {
    drag({195, 700}, {195, 300}, 4);
    up({195, 300});
    advance(std::chrono::milliseconds(100));
    ASSERT_TRUE(peerOf<UIScrollViewPeer>(*scroll).isMoving());
    finger.touch(TouchPhase::Began, {195, 500});
    EXPECT_FALSE(peerOf<UIScrollViewPeer>(*scroll).isMoving());
    up({195, 500});
}
