#include "KnownTexts.h"

#include "FontFaces.h"
#include "TextLayout.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QTextLayout>
#include <string>

namespace {

constexpr FontStyle style{.size = 17};

/// A text that no other test asks for.
std::string newText(const std::string& words) {
    static auto made = 0;
    return words + " " + std::to_string(++made);
}

class KnownTextsTest : public testing::Test {
protected:
    static std::shared_ptr<const TextLines> lines(const std::string& text, const TextLines::Room& room = {}) {
        return KnownTexts::shared().lines(text, style, room);
    }

    /// How many have been made since the test began.
    [[nodiscard]] std::size_t made() const { return KnownTexts::shared().madeCount() - madeBefore_; }

private:
    std::size_t madeBefore_ = KnownTexts::shared().madeCount();
};

/// Black, in a picture that is the same whatever the lines were kept for.
QImage painted(const TextLines& lines) {
    QImage picture(400, 200, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    auto y = 0.0;
    for (const auto& line : lines.lines()) {
        line.textLine().draw(&painter, {0, y});
        y += line.textLine().height();
    }
    return picture;
}

} // namespace

TEST_F(KnownTextsTest, TheLettersOfEachFaceArePreparedOnce) {
    while (KnownTexts::shared().prepare()) {
    }
    EXPECT_EQ(made(), FontFaces::styles().size());
    EXPECT_FALSE(KnownTexts::shared().prepare());
    EXPECT_EQ(made(), FontFaces::styles().size());
}

TEST_F(KnownTextsTest, ATextIsBrokenIntoLinesOnce) {
    const auto text = newText("Settings");
    const auto first = lines(text, {.width = 90});
    EXPECT_EQ(lines(text, {.width = 90}), first);
    EXPECT_EQ(made(), 1U);
    EXPECT_NE(KnownTexts::shared().lines(text, {.size = 13}, {.width = 90}), first);
    EXPECT_NE(KnownTexts::shared().lines(text, {.size = 17, .weight = FontWeight::Bold}, {.width = 90}),
              first);
    EXPECT_EQ(made(), 3U);
}

TEST_F(KnownTextsTest, ATextThatFitsIsTheSameInEveryRoom) {
    const auto text = newText("Settings");
    const auto measured = lines(text);
    EXPECT_EQ(lines(text, {.width = 300}), measured);
    EXPECT_EQ(lines(text, {.width = 300, .lines = 1, .endsWithEllipsis = false}), measured);
    EXPECT_EQ(made(), 1U);
}

TEST_F(KnownTextsTest, ATextOfSeveralLinesIsTheSameWithAnyNumberOfThemThatIsEnough) {
    const auto text = newText("Settings of a pane");
    const auto measured = lines(text, {.width = 80});
    ASSERT_EQ(measured->lines().size(), 3U);
    EXPECT_EQ(lines(text, {.width = 80, .lines = 3}), measured);
    EXPECT_EQ(lines(text, {.width = 80, .lines = 4}), measured);
    const auto cut = lines(text, {.width = 80, .lines = 2});
    EXPECT_NE(cut, measured);
    EXPECT_TRUE(cut->isTruncated());
    EXPECT_EQ(lines(text, {.width = 80}), measured);
}

TEST_F(KnownTextsTest, WhatIsCutOffIsCutOffInItsOwnRoomAlone) {
    const auto text = newText("Settings of a pane");
    const auto cut = lines(text, {.width = 60, .lines = 1});
    EXPECT_TRUE(cut->isTruncated());
    EXPECT_EQ(lines(text, {.width = 60, .lines = 1}), cut);
    EXPECT_NE(lines(text, {.width = 60, .lines = 1, .endsWithEllipsis = false}), cut);
    EXPECT_NE(lines(text, {.width = 70, .lines = 1}), cut);
    EXPECT_FALSE(lines(text, {.width = 300, .lines = 1})->isTruncated());
}

TEST_F(KnownTextsTest, ATextThatIsTooWideIsBroken) {
    const auto text = newText("Settings of a pane");
    EXPECT_EQ(lines(text)->lines().size(), 1U);
    EXPECT_GT(lines(text, {.width = 80})->lines().size(), 1U);
}

/// Around the width that a text has, to and fro.
TEST_F(KnownTextsTest, LinesComeOutAsThoseThatAreMadeForTheirRoom) {
    for (const auto* const words : {"Settings", "ends with a space ", " begins with one", "one\nand another",
                                    "مرحبا", "עברית and more", "a\n\nb"}) {
        const auto text = newText("") + words;
        const auto width = TextLayout(text, style).size().width();
        for (auto step = -40; step <= 40; ++step) {
            const TextLines::Room room{.width = width + step / 20.0, .lines = 3};
            const TextLines alone(text, style, room);
            const auto known = lines(text, room);
            ASSERT_EQ(known->lines().size(), alone.lines().size()) << text << " in " << room.width;
            EXPECT_EQ(known->isTruncated(), alone.isTruncated()) << text << " in " << room.width;
            EXPECT_EQ(painted(*known), painted(alone)) << text << " in " << room.width;
        }
    }
}

TEST_F(KnownTextsTest, TheLastUsedTextsAreKept) {
    const auto often = newText("often");
    const auto once = newText("once");
    const auto kept = lines(often);
    static_cast<void>(lines(once));
    for (std::size_t other = 0; other < KnownTexts::capacity; ++other) {
        static_cast<void>(lines(newText("other")));
        EXPECT_EQ(lines(often), kept);
    }
    const auto madeBefore = made();
    static_cast<void>(lines(once));
    EXPECT_EQ(made(), madeBefore + 1);
}
