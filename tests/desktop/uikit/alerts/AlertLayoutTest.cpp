#include "alerts/AlertLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

namespace {

using enum UIAlertActionStyle;

struct Arrangement {
    std::vector<double> widths;
    std::vector<UIAlertActionStyle> styles;
    bool beside;
    std::vector<std::size_t> order;
    double height;
};

void PrintTo(const Arrangement& arrangement, std::ostream* stream) {
    *stream << testing::PrintToString(arrangement.widths);
}

class AlertLayoutTest : public testing::TestWithParam<Arrangement> {};

} // namespace

TEST_P(AlertLayoutTest, putsButtonsBesideEachOtherWhereTwoFitAndTheOneThatCancelsToItsPlace) {
    const auto& expected = GetParam();
    const AlertLayout layout(expected.widths, 0.5);
    EXPECT_EQ(layout.isBeside(), expected.beside);
    EXPECT_EQ(layout.order(expected.styles), expected.order);
    EXPECT_DOUBLE_EQ(layout.height(), expected.height);
}

INSTANTIATE_TEST_SUITE_P(
    Arrangements, AlertLayoutTest,
    testing::Values(Arrangement{{}, {}, false, {}, 0}, Arrangement{{30}, {Default}, false, {0}, 44.5},
                    Arrangement{{30}, {Cancel}, false, {0}, 44.5},
                    Arrangement{{400}, {Cancel}, false, {0}, 44.5},
                    Arrangement{{30, 50}, {Default, Default}, true, {0, 1}, 44.5},
                    Arrangement{{30, 50}, {Default, Cancel}, true, {1, 0}, 44.5},
                    Arrangement{{30, 50}, {Cancel, Destructive}, true, {0, 1}, 44.5},
                    Arrangement{{119, 119}, {Destructive, Cancel}, true, {1, 0}, 44.5},
                    Arrangement{{119, 120}, {Destructive, Cancel}, false, {0, 1}, 89},
                    Arrangement{{120, 30}, {Cancel, Default}, false, {1, 0}, 89},
                    Arrangement{{30, 30, 30}, {Cancel, Default, Destructive}, false, {1, 2, 0}, 133.5},
                    Arrangement{
                        {9, 9, 9, 9}, {Default, Cancel, Default, Default}, false, {0, 2, 3, 1}, 178}));

TEST(AlertLayoutFrames, fillTheWidthBesideAndBelowEachOther) {
    const AlertLayout beside({30, 30}, 0.5);
    EXPECT_EQ(beside.frame(0), CGRectMake(0, 0, 135, 44.5));
    EXPECT_EQ(beside.frame(1), CGRectMake(135, 0, 135, 44.5));
    const AlertLayout stacked({30, 30, 30}, 0.5);
    EXPECT_EQ(stacked.frame(0), CGRectMake(0, 0, 270, 44.5));
    EXPECT_EQ(stacked.frame(2), CGRectMake(0, 89, 270, 44.5));
}
