#include "PaintedTexts.h"

#include "KnownTexts.h"
#include "TextLayout.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <memory>
#include <string>

namespace {

constexpr FontStyle style{.size = 17};
constexpr auto scale = 3.0;
constexpr QPointF origin(16, 12);

/// A text that no other test paints.
std::string newText() {
    static auto made = 0;
    return "Settings " + std::to_string(++made);
}

QImage painted(const TextLayout& text, QPointF place = origin, const QColor& color = Qt::black) {
    QImage picture(480, 180, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    text.paint(painter, place, color);
    return picture;
}

TextLayout aligned(const std::string& text, HorizontalAlignment alignment, double width = 140) {
    return {text, style, {.maximumWidth = width, .alignment = alignment, .pixelScale = scale}};
}

/// Has the lines of all texts made anew, and so their pictures.
void forgetLines() {
    for (std::size_t number = 0; number < KnownTexts::capacity; ++number)
        static_cast<void>(KnownTexts::shared().lines(std::to_string(number), {}, {}));
}

QImage blank(QSize size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

/// Of lines that are aligned to the left.
PaintedTexts::Key keyOf(const std::shared_ptr<const TextLines>& lines, QSize size, double width = 0) {
    return {.lines = lines,
            .alignment = HorizontalAlignment::Left,
            .width = width,
            .toPicture = {},
            .size = size};
}

class PaintedTextsTest : public testing::Test {
protected:
    /// How many have been made since the test began.
    [[nodiscard]] std::size_t made() const { return PaintedTexts::shared().madeCount() - madeBefore_; }

private:
    std::size_t madeBefore_ = PaintedTexts::shared().madeCount();
};

} // namespace

TEST_F(PaintedTextsTest, ATextThatIsPaintedAgainHasItsLettersMadeOnce) {
    const auto text = newText();
    const auto first = painted(TextLayout(text, style));
    EXPECT_EQ(painted(TextLayout(text, style)), first);
    EXPECT_EQ(made(), 1U);
    EXPECT_NE(first, painted(TextLayout("", style)));
}

TEST_F(PaintedTextsTest, TheSameLettersAreAtAnotherPlaceOfWholePixels) {
    const auto text = newText();
    const auto first = painted(TextLayout(text, style));
    const auto moved = painted(TextLayout(text, style), origin + QPointF(1, 2));
    EXPECT_EQ(made(), 1U);
    const auto distance = QPoint(3, 6);
    const auto part = first.rect().adjusted(0, 0, -distance.x(), -distance.y());
    EXPECT_EQ(moved.copy(part.translated(distance)), first.copy(part));
}

TEST_F(PaintedTextsTest, WhateverIsOtherMakesOtherLetters) {
    const auto text = newText();
    const auto left = aligned(text, HorizontalAlignment::Left);
    static_cast<void>(painted(left));
    EXPECT_EQ(made(), 1U);
    const auto between = painted(left, origin + QPointF(0.01, 0));
    EXPECT_EQ(made(), 2U);
    const auto right = painted(aligned(text, HorizontalAlignment::Right));
    EXPECT_EQ(made(), 3U);
    const auto narrow = painted(aligned(text, HorizontalAlignment::Right, 120));
    const TextLayout bold(text, {.size = 17, .weight = FontWeight::Bold}, {});
    const auto heavy = painted(bold);
    EXPECT_EQ(made(), 5U);

    forgetLines();
    const auto anew = aligned(text, HorizontalAlignment::Left);
    EXPECT_EQ(painted(anew, origin + QPointF(0.01, 0)), between);
    EXPECT_EQ(painted(aligned(text, HorizontalAlignment::Right)), right);
    EXPECT_EQ(painted(aligned(text, HorizontalAlignment::Right, 120)), narrow);
    EXPECT_EQ(painted(TextLayout(text, {.size = 17, .weight = FontWeight::Bold}, {})), heavy);
}

TEST_F(PaintedTextsTest, LinesAreAlignedEachTheirOwnWay) {
    const auto text = newText() + "\nS";
    const auto width = TextLayout(text, style, {.pixelScale = scale}).size().width();
    const auto left = painted(aligned(text, HorizontalAlignment::Left, width));
    EXPECT_NE(painted(aligned(text, HorizontalAlignment::Right, width)), left);
    EXPECT_EQ(painted(aligned(text, HorizontalAlignment::Left, width)), left);
    EXPECT_EQ(made(), 2U);
}

TEST_F(PaintedTextsTest, EveryLineIsPainted) {
    const auto text = newText();
    const auto one = painted(TextLayout(text, style));
    const auto two = painted(TextLayout(text + "\nSettings", style));
    const auto part = QRect(0, 0, one.width(), static_cast<int>((origin.y() + style.ascent()) * scale));
    EXPECT_EQ(two.copy(part), one.copy(part));
    EXPECT_NE(two, one);
}

TEST_F(PaintedTextsTest, LettersOfAnyColorAreThoseOfAPainter) {
    QImage black(256, 1, QImage::Format_ARGB32_Premultiplied);
    for (auto x = 0; x < black.width(); ++x)
        black.setPixel(x, 0, static_cast<QRgb>(x) << 24U);
    const auto lines = KnownTexts::shared().lines(newText(), style, {});
    const auto key = keyOf(lines, black.size());
    const auto coverage = PaintedTexts::shared().coverage(key, [&black] { return black; });
    EXPECT_EQ(coverage.format(), QImage::Format_Alpha8);
    for (const auto& color : {QColor(Qt::white), QColor(255, 59, 48), QColor(60, 60, 67, 153)}) {
        auto expected = QImage(black.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(color);
        {
            QPainter painter(&expected);
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.drawImage(0, 0, black);
        }
        EXPECT_EQ(PaintedTexts::colored(coverage, color), expected);
    }
}

TEST_F(PaintedTextsTest, LettersWithColorsOfTheirOwnHaveNoOther) {
    QImage picture(8, 8, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(3, 4, Qt::red);
    const auto lines = KnownTexts::shared().lines(newText(), style, {});
    const auto key = keyOf(lines, picture.size());
    const auto paint = [&picture] { return picture; };
    EXPECT_TRUE(PaintedTexts::shared().coverage(key, paint).isNull());
    EXPECT_TRUE(PaintedTexts::shared().coverage(key, paint).isNull());
    EXPECT_EQ(made(), 1U);
}

TEST_F(PaintedTextsTest, LettersThatAreCutOffAtThePicturesEdgeAreTheirOwn) {
    const auto text = newText();
    const auto whole = painted(TextLayout(text, style));
    const auto cut = painted(TextLayout(text, style), origin - QPointF(20, 0));
    EXPECT_EQ(made(), 2U);
    const auto distance = QPoint(60, 0);
    const auto part = whole.rect().adjusted(distance.x(), 0, 0, 0);
    EXPECT_EQ(cut.copy(part.translated(-distance)), whole.copy(part));
    EXPECT_EQ(painted(TextLayout(text, style)), whole);
}

TEST_F(PaintedTextsTest, TheLastUsedAreKeptAndNoMoreThanThereIsRoomFor) {
    auto& texts = PaintedTexts::shared();
    const auto lines = KnownTexts::shared().lines(newText(), style, {});
    const auto use = [&](int number) {
        const auto picture =
            texts.coverage(keyOf(lines, {512, 512}, number), [] { return blank({512, 512}); });
        EXPECT_EQ(picture.size(), QSize(512, 512));
    };
    constexpr auto room = static_cast<int>(PaintedTexts::capacity / 512 / 512);
    for (auto number = 0; number < room; ++number)
        use(number);
    EXPECT_EQ(made(), static_cast<std::size_t>(room));
    use(0);
    EXPECT_EQ(made(), static_cast<std::size_t>(room));
    use(room); // for which the longest unused goes
    use(0);
    EXPECT_EQ(made(), static_cast<std::size_t>(room) + 1);
    use(1);
    EXPECT_EQ(made(), static_cast<std::size_t>(room) + 2);
}

TEST_F(PaintedTextsTest, WhatWouldTakeTheRoomOfAllOthersIsNotKept) {
    const auto lines = KnownTexts::shared().lines(newText(), style, {});
    const auto key = keyOf(lines, {1024, 1024});
    const auto use = [&key] {
        return PaintedTexts::shared().coverage(key, [] { return blank({1024, 1024}); });
    };
    EXPECT_EQ(use().size(), QSize(1024, 1024));
    EXPECT_EQ(use().size(), QSize(1024, 1024));
    EXPECT_EQ(made(), 2U);
}
