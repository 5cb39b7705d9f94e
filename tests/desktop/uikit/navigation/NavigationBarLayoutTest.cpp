#include "navigation/NavigationBarLayout.h"

#include <gtest/gtest.h>

namespace {

NavigationBarParts phoneBar(double titleWidth) {
    NavigationBarParts parts;
    parts.bar = {390, 44};
    parts.title = {titleWidth, 20};
    parts.displayScale = 3;
    return parts;
}

} // namespace

TEST(NavigationBarLayoutTest, aTitleAloneIsInTheMiddle) {
    EXPECT_EQ(placesFor(phoneBar(100)).title, CGRectMake(145, 12, 100, 20));
}

TEST(NavigationBarLayoutTest, aTitleStaysInTheMiddleBetweenButtonsOfDifferentWidths) {
    auto parts = phoneBar(100);
    parts.left = {30};
    parts.right = {90};
    EXPECT_EQ(placesFor(parts).title, CGRectMake(145, 12, 100, 20));
}

TEST(NavigationBarLayoutTest, aTitleIsShiftedAwayFromAButtonThatIsInItsWay) {
    auto parts = phoneBar(200);
    parts.right = {90};
    // 390 - 16 - 90 - 8 is where the title's room ends.
    EXPECT_EQ(placesFor(parts).title, CGRectMake(76, 12, 200, 20));
    parts.left = parts.right;
    parts.right.clear();
    EXPECT_EQ(placesFor(parts).title, CGRectMake(114, 12, 200, 20));
}

TEST(NavigationBarLayoutTest, aTitleThatIsTooWideTakesTheRoomThereIs) {
    auto parts = phoneBar(1000);
    EXPECT_EQ(placesFor(parts).title, CGRectMake(16, 12, 358, 20));
    parts.right = {90};
    EXPECT_EQ(placesFor(parts).title, CGRectMake(16, 12, 260, 20));
}

TEST(NavigationBarLayoutTest, aTitleStandsOnWholePixels) {
    EXPECT_DOUBLE_EQ(placesFor(phoneBar(100.4)).title.origin.x, 434.0 / 3); // 144.8 is between two
}

TEST(NavigationBarLayoutTest, aTitleViewIsNoHigherThanTheBar) {
    auto parts = phoneBar(51);
    parts.title.height = 80;
    EXPECT_EQ(placesFor(parts).title, CGRectMake(169 + 2.0 / 3, 0, 51, 44));
}

TEST(NavigationBarLayoutTest, buttonsHaveRoomForAFingerAroundTheirContents) {
    auto parts = phoneBar(0);
    parts.left = {22};
    parts.right = {22, 20, 80};
    const auto places = placesFor(parts);
    EXPECT_EQ(places.left.at(0), CGRectMake(5, 0, 44, 44));
    EXPECT_EQ(places.right.at(0), CGRectMake(341, 0, 44, 44));
    EXPECT_EQ(places.right.at(1), CGRectMake(297, 0, 44, 44)); // contents 352..374 and 309..329: 44 apart
    EXPECT_EQ(places.right.at(2), CGRectMake(221, 0, 80, 44)); // 8 from the content before
}

TEST(NavigationBarLayoutTest, theBackButtonHasThePreferredTitleThatLeavesTheTitleItsWidth) {
    auto parts = phoneBar(100);
    parts.hasBackButton = true;
    parts.backTitles = {80, 37};
    auto places = placesFor(parts);
    EXPECT_EQ(places.backTitle, 0);
    EXPECT_EQ(places.back, CGRectMake(0, 0, 107, 44));
    EXPECT_EQ(places.title, CGRectMake(145, 12, 100, 20));

    parts.title.width = 270; // to the left edge's 27 + 80 + 8 there are only 390 - 16 - 115 = 259 left
    places = placesFor(parts);
    EXPECT_EQ(places.backTitle, 1);
    EXPECT_EQ(places.title, CGRectMake(72, 12, 270, 20));

    parts.title.width = 310;
    places = placesFor(parts);
    EXPECT_FALSE(places.backTitle);
    EXPECT_EQ(places.back, CGRectMake(0, 0, 50, 44));
    EXPECT_EQ(places.title, CGRectMake(40, 12, 310, 20));

    parts.title.width = 400;
    places = placesFor(parts);
    EXPECT_FALSE(places.backTitle);
    EXPECT_EQ(places.title, CGRectMake(29, 12, 345, 20));
}

TEST(NavigationBarLayoutTest, leftButtonsFollowTheBackButton) {
    auto parts = phoneBar(100);
    parts.hasBackButton = true;
    parts.backTitles = {37};
    parts.left = {44};
    EXPECT_EQ(placesFor(parts).left.at(0), CGRectMake(72, 0, 44, 44));
}

TEST(NavigationBarLayoutTest, withoutABackButtonThereIsNone) {
    EXPECT_EQ(placesFor(phoneBar(100)).back, CGRect());
}

TEST(NavigationBarLayoutTest, theMarginFollowsTheWidthClass) {
    EXPECT_EQ(barMargin({.compactWidth = true}), 16);
    EXPECT_EQ(barMargin({.compactWidth = false}), 20);
}
