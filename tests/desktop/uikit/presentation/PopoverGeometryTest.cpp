#include "presentation/PopoverGeometry.h"

#include "RectGeometry.h"

#include <gtest/gtest.h>

namespace {

using Side = PopoverGeometry::Side;

constexpr CGRect room = CGRectMake(0, 24, 820, 1136);
constexpr CGSize size{375, 254};

PopoverGeometry::Place placeFor(const CGRect& source, CGSize wanted = size) {
    return PopoverGeometry{.room = room, .source = source}.place(wanted);
}

} // namespace

TEST(PopoverGeometryTest, IsBelowItsSourceAndPointsAtItsMiddle) {
    const auto place = placeFor(CGRectMake(400, 580, 20, 20));
    EXPECT_EQ(place.side, Side::Below);
    EXPECT_EQ(place.panel, CGRectMake(222.5, 613, 375, 254));
    EXPECT_EQ(place.arrow, CGRectMake(397, 600, 26, 13));
}

TEST(PopoverGeometryTest, IsAboveWhereThereIsNoRoomBelow) {
    const auto place = placeFor(CGRectMake(400, 1000, 20, 20));
    EXPECT_EQ(place.side, Side::Above);
    EXPECT_EQ(place.panel, CGRectMake(222.5, 733, 375, 254));
    EXPECT_EQ(place.arrow, CGRectMake(397, 987, 26, 13));
}

TEST(PopoverGeometryTest, IsBesideWhatIsTooHighForBoth) {
    const auto right = placeFor(CGRectMake(10, 100, 100, 1000));
    EXPECT_EQ(right.side, Side::Right);
    EXPECT_EQ(right.panel, CGRectMake(123, 473, 375, 254));
    EXPECT_EQ(right.arrow, CGRectMake(110, 587, 13, 26));
    const auto left = placeFor(CGRectMake(700, 100, 100, 1000));
    EXPECT_EQ(left.side, Side::Left);
    EXPECT_EQ(left.panel, CGRectMake(312, 473, 375, 254));
    EXPECT_EQ(left.arrow, CGRectMake(687, 587, 13, 26));
}

TEST(PopoverGeometryTest, KeepsAwayFromTheEdgesWhileItsArrowStillPoints) {
    const auto left = placeFor(CGRectMake(30, 100, 20, 20));
    EXPECT_EQ(left.panel.origin.x, 10);
    EXPECT_EQ(CGRectGetMidX(left.arrow), 40);
    const auto right = placeFor(CGRectMake(760, 100, 20, 20));
    EXPECT_EQ(CGRectGetMaxX(right.panel), 810);
    EXPECT_EQ(CGRectGetMidX(right.arrow), 770);
}

TEST(PopoverGeometryTest, TheArrowKeepsAwayFromThePanelsCorners) {
    const auto place = placeFor(CGRectMake(0, 100, 2, 2));
    EXPECT_EQ(place.panel.origin.x, 10);
    EXPECT_EQ(place.arrow.origin.x, 23);
}

TEST(PopoverGeometryTest, IsCutDownWhereNoSideHasRoom) {
    const auto below = placeFor(CGRectMake(0, 300, 820, 400), {375, 700});
    EXPECT_EQ(below.side, Side::Below);
    EXPECT_EQ(below.panel, CGRectMake(222.5, 713, 375, 437));
    const auto above = placeFor(CGRectMake(0, 600, 820, 400), {900, 700});
    EXPECT_EQ(above.side, Side::Above);
    EXPECT_EQ(above.panel, CGRectMake(10, 34, 800, 553));
}
