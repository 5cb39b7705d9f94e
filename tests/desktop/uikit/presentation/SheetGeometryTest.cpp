#include "presentation/SheetGeometry.h"

#include "RectGeometry.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using enum UIModalPresentationStyle;

constexpr UIEdgeInsets phoneArea{.top = 47, .left = 0, .bottom = 34, .right = 0};
constexpr UIEdgeInsets padArea{.top = 24, .left = 0, .bottom = 20, .right = 0};

struct Card {
    SheetGeometry geometry;
    UIModalPresentationStyle style;
    CGRect frame;
};

void PrintTo(const Card& card, std::ostream* stream) {
    *stream << card.geometry.size.width << " x " << card.geometry.size.height << ", style "
            << static_cast<int>(card.style) << ", keyboard " << card.geometry.keyboardHeight;
}

class SheetCard : public testing::TestWithParam<Card> {};

SheetGeometry phone(double keyboard = 0) {
    return {.idiom = Idiom::Phone, .size = {390, 844}, .safeArea = phoneArea, .keyboardHeight = keyboard};
}

SheetGeometry pad(CGSize size, double keyboard = 0) {
    return {.idiom = Idiom::Pad, .size = size, .safeArea = padArea, .keyboardHeight = keyboard};
}

constexpr CGSize upright{820, 1180};
constexpr CGSize lying{1180, 820};

} // namespace

TEST_P(SheetCard, isWhereItsDeviceHasIt) {
    EXPECT_EQ(GetParam().geometry.cardFrame(GetParam().style), GetParam().frame);
}

INSTANTIATE_TEST_SUITE_P(Cards, SheetCard,
                         testing::Values(Card{phone(), Automatic, CGRectMake(0, 57, 390, 787)},
                                         Card{phone(), PageSheet, CGRectMake(0, 57, 390, 787)},
                                         Card{phone(), FormSheet, CGRectMake(0, 57, 390, 787)},
                                         Card{phone(336), PageSheet, CGRectMake(0, 57, 390, 787)},
                                         Card{pad(upright), Automatic, CGRectMake(54, 115, 712, 950)},
                                         Card{pad(upright), PageSheet, CGRectMake(54, 115, 712, 950)},
                                         Card{pad(upright, 320), PageSheet, CGRectMake(54, 115, 712, 950)},
                                         Card{pad(lying), PageSheet, CGRectMake(234, 44, 712, 732)},
                                         Card{pad({600, 800}), PageSheet, CGRectMake(20, 44, 560, 712)},
                                         Card{pad(upright), FormSheet, CGRectMake(140, 280, 540, 620)},
                                         Card{pad(upright, 320), FormSheet, CGRectMake(140, 132, 540, 620)},
                                         Card{pad(lying, 400), FormSheet, CGRectMake(320, 24, 540, 620)},
                                         Card{pad({500, 500}), FormSheet, CGRectMake(20, 44, 460, 412)}));

TEST(SheetGeometryTest, aCardLeavesByTheLowerEdge) {
    EXPECT_DOUBLE_EQ(phone().wayOut(CGRectMake(0, 57, 390, 787)), 787);
    EXPECT_DOUBLE_EQ(pad(upright).wayOut(CGRectMake(140, 280, 540, 620)), 900);
}

TEST(SheetGeometryTest, whatACardCoversStepsBackOnAPhoneOnly) {
    EXPECT_TRUE(phone().coveredStepsBack());
    EXPECT_FALSE(pad(upright).coveredStepsBack());
}

TEST(SheetGeometryTest, theScreensViewAndACardStepBackToTheSamePlace) {
    for (const auto& frame : {CGRectMake(0, 0, 390, 844), CGRectMake(0, 57, 390, 787)}) {
        const auto middle = AffineTransform::translation(CGRectGetMidX(frame), CGRectGetMidY(frame));
        const auto placed = [&](double amount) {
            return middle.after(phone().steppedBack(frame, amount)).after(middle.inverse())(frame);
        };
        EXPECT_EQ(placed(0), frame);
        EXPECT_NEAR(placed(1).origin.x, 10, 1e-9);
        EXPECT_NEAR(placed(1).origin.y, 47, 1e-9);
        EXPECT_NEAR(placed(1).size.width, 370, 1e-9);
        EXPECT_NEAR(placed(0.5).origin.y, (frame.origin.y + 47) / 2, 1e-9);
    }
}

TEST(SheetGeometryTest, aCardThatIsLetGoLeavesWhenItIsFarOrFastEnough) {
    struct Case {
        double part;
        double speed;
        bool leaves;
    };

    for (const auto& [part, speed, leaves] :
         {Case{0, 0, false}, Case{0.5, 0, false}, Case{0.51, 0, true}, Case{0.51, -0.9, true},
          Case{0.9, -1.1, false}, Case{0.05, 0.9, false}, Case{0.05, 1.1, true}, Case{0, 5, false},
          Case{-0.1, 5, false}})
        EXPECT_EQ(SheetGeometry::letGoDismisses(part, speed), leaves) << part << ", " << speed;
}
