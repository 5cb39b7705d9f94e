#include "text/TextFieldBorder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <vector>

namespace {

struct Case {
    UITextBorderStyle style;
    double inset;
    double height;
    bool hasLine;
    bool isFilled;
};

QImage drawn(UITextBorderStyle style, const Traits& traits) {
    QImage picture(100, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    TextFieldBorder::draw(style, painter, CGRectMake(0, 0, 100, 40), traits);
    return picture;
}

TEST(TextFieldBorderTest, HasTheMeasuresAndLooksOfItsStyle) {
    const std::vector<Case> table{
        {UITextBorderStyle::None, 0, 22, false, false},
        {UITextBorderStyle::Line, 4, 34, true, false},
        {UITextBorderStyle::Bezel, 4, 34, true, false},
        {UITextBorderStyle::RoundedRect, 7, 34, true, true},
    };
    const Traits traits{.displayScale = 1};
    for (const auto& [style, inset, height, hasLine, isFilled] : table) {
        const auto number = static_cast<int>(style);
        EXPECT_EQ(TextFieldBorder::textInsets(style).left, inset) << number;
        EXPECT_EQ(TextFieldBorder::textInsets(style).right, inset) << number;
        EXPECT_EQ(TextFieldBorder::height(style), height) << number;
        const auto picture = drawn(style, traits);
        EXPECT_EQ(picture.pixelColor(50, 0).alpha() > 0, hasLine) << number;
        EXPECT_EQ(picture.pixelColor(50, 20).alpha() > 0, isFilled) << number;
    }
}

TEST(TextFieldBorderTest, RoundsItsCorners) {
    const Traits traits{.displayScale = 1};
    EXPECT_EQ(drawn(UITextBorderStyle::RoundedRect, traits).pixelColor(0, 0).alpha(), 0);
    EXPECT_GT(drawn(UITextBorderStyle::Line, traits).pixelColor(0, 0).alpha(), 0);
}

TEST(TextFieldBorderTest, IsDarkInTheDark) {
    const Traits dark{.style = UserInterfaceStyle::Dark, .displayScale = 1};
    EXPECT_EQ(drawn(UITextBorderStyle::RoundedRect, {.displayScale = 1}).pixelColor(50, 20),
              QColor(Qt::white));
    EXPECT_EQ(drawn(UITextBorderStyle::RoundedRect, dark).pixelColor(50, 20), QColor(Qt::black));
}

} // namespace
