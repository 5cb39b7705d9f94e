#include "symbols/SymbolOutline.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

QPainterPath rectangle(double x, double y, double width, double height) {
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

SymbolOutline outlineOf(const QPainterPath& regular) {
    return {regular, [] { return rectangle(0, 0, 600, 300); }};
}

} // namespace

TEST(SymbolOutlineTest, TheSizeIsTheInkWithMargins) {
    const auto outline = outlineOf(rectangle(-100, -700, 500, 250));
    EXPECT_DOUBLE_EQ(outline.size(100).width(), 50 + 2 * 8.8);
    EXPECT_DOUBLE_EQ(outline.size(100).height(), 25 + 2 * 6.0);
}

TEST(SymbolOutlineTest, TheInkIsInTheMiddleOfItsBox) {
    const auto outline = outlineOf(rectangle(-100, -700, 500, 250));
    for (const double size : {10.0, 17.0, 60.0}) {
        const auto box = QRectF({0, 0}, outline.size(size));
        const auto ink = outline.path(size).boundingRect();
        EXPECT_NEAR(ink.width(), 0.5 * size, 1e-9);
        EXPECT_NEAR(ink.center().x(), box.center().x(), 1e-9);
        EXPECT_NEAR(ink.center().y(), box.center().y(), 1e-9);
        EXPECT_TRUE(box.contains(ink));
    }
}

TEST(SymbolOutlineTest, TheSemiboldOutlineIsMadeOnceAndOnlyWhenAskedFor) {
    int made = 0;
    const SymbolOutline outline(rectangle(0, 0, 500, 300), [&] {
        ++made;
        return rectangle(0, 0, 600, 300);
    });
    std::optional<SymbolOutline> copy(outline);
    EXPECT_DOUBLE_EQ(outline.path(10).boundingRect().width(), 5);
    EXPECT_EQ(made, 0);
    EXPECT_DOUBLE_EQ(outline.path(10, SymbolWeight::Semibold).boundingRect().width(), 6);
    EXPECT_DOUBLE_EQ(copy->size(10, SymbolWeight::Semibold).width(), 6 + 2 * 0.88);
    EXPECT_EQ(made, 1);
}

TEST(SymbolOutlineTest, ThePreparedOutlineIsTheOneThatIsAskedFor) {
    int made = 0;
    const SymbolOutline outline(rectangle(0, 0, 500, 300), [&] {
        ++made;
        return rectangle(0, 0, 600, 300);
    });
    EXPECT_FALSE(outline.prepare(SymbolWeight::Regular));
    EXPECT_EQ(made, 0);
    EXPECT_TRUE(outline.prepare(SymbolWeight::Semibold));
    EXPECT_FALSE(outline.prepare(SymbolWeight::Semibold));
    EXPECT_EQ(made, 1);
    EXPECT_DOUBLE_EQ(outline.path(10, SymbolWeight::Semibold).boundingRect().width(), 6);
    EXPECT_EQ(made, 1);
}
