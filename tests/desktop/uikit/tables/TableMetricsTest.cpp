#include "tables/TableMetrics.h"

#include <gtest/gtest.h>

TEST(TableMetrics, CardsOfAPhoneStand16FromItsEdges) {
    const TableMetrics phone(390, 3);
    EXPECT_EQ(phone.margin(), 16);
    EXPECT_EQ(phone.cardWidth(), 358);
    EXPECT_EQ(phone.textLeft(), 32);
    EXPECT_EQ(phone.textWidth(), 326);
}

TEST(TableMetrics, CardsOfAWideTableStand20FromItsEdges) {
    EXPECT_EQ(TableMetrics(413, 3).margin(), 16);
    EXPECT_EQ(TableMetrics(414, 3).margin(), 20);
    EXPECT_EQ(TableMetrics(820, 2).cardWidth(), 780);
}

TEST(TableMetrics, GapsBetweenCardsWithoutTextsAre35) {
    const TableMetrics phone(390, 3);
    EXPECT_EQ(phone.emptyHeaderHeight(true), 35);
    EXPECT_NEAR(phone.emptyFooterHeight() + phone.emptyHeaderHeight(false), 35.33, 0.01);
}

TEST(TableMetrics, HeadersAndFootersLeaveRoomAroundTheirTexts) {
    const TableMetrics phone(390, 3);
    const auto line = 47.0 / 3;
    EXPECT_NEAR(phone.headerHeight(line, false), 38, 0.01);
    EXPECT_NEAR(phone.headerHeight(line, true), 55, 0.01);
    EXPECT_NEAR(phone.footerHeight(2 * line), 48.67, 0.01);
}

TEST(TableMetrics, RoundsUpToPixels) {
    EXPECT_NEAR(TableMetrics(390, 3).rounded(10.1), 10.333, 0.001);
    EXPECT_EQ(TableMetrics(820, 2).rounded(10.1), 10.5);
    EXPECT_NEAR(TableMetrics(390, 3).rounded(1.0 / 3 + 1.0 / 3), 0.6667, 0.0001);
    EXPECT_EQ(TableMetrics(820, 2).hairline(), 0.5);
}

TEST(TableMetrics, ATableWithoutRoomHasNoNegativeWidths) {
    const TableMetrics narrow(10, 3);
    EXPECT_EQ(narrow.cardWidth(), 0);
    EXPECT_EQ(narrow.textWidth(), 0);
}
