#include "PixelWork.h"

#include "BlankPicture.h"
#include "PixelRects.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr auto rows = PixelWork::rowsAtOnce;

PixelWork::Step filling(const QColor& color) {
    return [color](QImage& target, const QRect& pixels, QPoint corner) {
        PixelRects::fill(target, pixels.translated(-corner), color);
    };
}

/// Writes down what it is asked for: its name with the first and the last row.
PixelWork::Step noting(const std::string& name, std::vector<std::string>& notes) {
    return [name, &notes](const QImage& /*target*/, const QRect& pixels, QPoint /*corner*/) {
        notes.push_back(name + " " + std::to_string(pixels.top()) + "-" + std::to_string(pixels.bottom()));
    };
}

} // namespace

TEST(PixelWorkTest, LaterStepsPaintOverEarlierOnes) {
    auto picture = blank({6, 50}, Qt::white);
    PixelWork work;
    work.add(QRegion(0, 0, 4, 50), filling(Qt::red));
    work.add(QRegion(2, 20, 4, 20) | QRect(0, 48, 1, 1), filling(Qt::blue));
    work.finish(picture);
    auto expected = blank({6, 50}, Qt::white);
    PixelRects::fill(expected, QRect(0, 0, 4, 50), Qt::red);
    PixelRects::fill(expected, QRect(2, 20, 4, 20), Qt::blue);
    PixelRects::fill(expected, QRect(0, 48, 1, 1), Qt::blue);
    EXPECT_EQ(picture, expected);
}

TEST(PixelWorkTest, AllStepsAreDoneToAFewRowsBeforeTheNextOnes) {
    auto picture = blank({1, 3 * rows}, Qt::white);
    std::vector<std::string> notes;
    PixelWork work;
    work.add(QRect(0, 0, 1, rows + 1), noting("first", notes));
    work.add(QRect(0, 0, 1, rows + 1), noting("second", notes));
    work.finish(picture);
    const auto row = std::to_string(rows);
    const auto band = " 0-" + std::to_string(rows - 1);
    const auto rest = std::string(" ").append(row).append("-").append(row);
    EXPECT_EQ(notes, (std::vector{"first" + band, "second" + band, "first" + rest, "second" + rest}));
}

TEST(PixelWorkTest, WhatIsDoneIsForgotten) {
    auto picture = blank({4, 4}, Qt::white);
    PixelWork work;
    work.add(QRect(0, 0, 4, 4), filling(Qt::red));
    work.finish(picture);
    picture.fill(Qt::white);
    work.finish(picture);
    EXPECT_EQ(picture, blank({4, 4}, Qt::white));
}

TEST(PixelWorkTest, APartIsDoneInAPictureOfItsOwn) {
    PixelWork work;
    work.add(QRect(0, 0, 30, 40), filling(Qt::red));
    work.add(QRect(12, 22, 5, 5), filling(Qt::blue));
    work.add(QRect(0, 0, 9, 40), filling(Qt::green)); // beside the part
    auto part = blank({10, 8}, Qt::white);
    work.doWithin({10, 20, 10, 8}, part);
    auto expected = blank({10, 8}, Qt::red);
    PixelRects::fill(expected, QRect(2, 2, 5, 5), Qt::blue);
    EXPECT_EQ(part, expected);
}

TEST(PixelWorkTest, NothingIsDoneForNoPixels) {
    auto picture = blank({4, 4}, Qt::white);
    std::vector<std::string> notes;
    PixelWork work;
    work.add({}, noting("none", notes));
    work.add(QRect(1, 2, 1, 1), noting("one", notes));
    work.finish(picture);
    EXPECT_EQ(notes, std::vector<std::string>{"one 2-2"});
}
