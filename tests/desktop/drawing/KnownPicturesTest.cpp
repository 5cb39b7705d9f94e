#include "KnownPictures.h"

#include "PngFile.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

class KnownPicturesTest : public testing::Test {
protected:
    QImage picture(const std::string& content) { return pictures_.picture(NSData::dataWithBytes(content)); }

    /// \returns how many steps that took
    int prepareAll() {
        constexpr auto most = 100;
        auto steps = 0;
        while (steps < most && pictures_.prepare())
            ++steps;
        return steps;
    }

    [[nodiscard]] std::size_t decoded() const { return pictures_.decodedCount(); }

    TestDevice device_;
    KnownPictures pictures_;
};

TEST_F(KnownPicturesTest, DecodesTheSameContentOnce) {
    const auto first = picture(pngFile(8, 6, Qt::blue));
    EXPECT_EQ(first.size(), QSize(8, 6));
    EXPECT_EQ(first.pixelColor(3, 3), QColor(Qt::blue));
    EXPECT_EQ(first.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(picture(pngFile(8, 6, Qt::blue)), first);
    EXPECT_EQ(decoded(), 1);
}

TEST_F(KnownPicturesTest, TellsContentsApart) {
    EXPECT_EQ(picture(pngFile(8, 6, Qt::blue)).pixelColor(3, 3), QColor(Qt::blue));
    EXPECT_EQ(picture(pngFile(8, 6, Qt::green)).pixelColor(3, 3), QColor(Qt::green));
    EXPECT_EQ(decoded(), 2);
}

TEST_F(KnownPicturesTest, HasNoneOfWhatIsNoPicture) {
    EXPECT_TRUE(picture("no picture").isNull());
    EXPECT_TRUE(picture("").isNull());
}

TEST_F(KnownPicturesTest, KeepsNoLargePicture) {
    static_assert(qsizetype{4} * 400 * 400 > KnownPictures::largest);
    EXPECT_EQ(picture(pngFile(400, 400)).size(), QSize(400, 400));
    EXPECT_EQ(picture(pngFile(400, 400)).size(), QSize(400, 400));
    EXPECT_EQ(decoded(), 2);
}

TEST_F(KnownPicturesTest, KeepsTheLastUsedOnes) {
    constexpr auto side = 300;
    constexpr auto atOnce = KnownPictures::capacity / (qsizetype{4} * side * side);
    const auto contentOf = [](qsizetype number) {
        return pngFile(side, side, QColor(0, 0, static_cast<int>(number)));
    };
    for (qsizetype number = 0; number < atOnce; ++number)
        static_cast<void>(picture(contentOf(number)));
    static_cast<void>(picture(contentOf(0)));
    EXPECT_EQ(decoded(), atOnce);
    static_cast<void>(picture(contentOf(atOnce)));
    static_cast<void>(picture(contentOf(0)));
    EXPECT_EQ(decoded(), atOnce + 1);
    static_cast<void>(picture(contentOf(1)));
    EXPECT_EQ(decoded(), atOnce + 2);
}

TEST_F(KnownPicturesTest, DecodesWhatIsExpectedBeforeItIsAskedFor) {
    device_.write("/a/icon@3x.png", pngFile(1, 1));
    device_.write("/a/icon.png", pngFile(2, 2));
    device_.write("/a/inside/row@3x.png", pngFile(3, 3));
    device_.write("/a/inside/text@3x.png", "no picture");
    pictures_.expect("/a", "@3x.png");
    EXPECT_EQ(decoded(), 0);
    EXPECT_EQ(prepareAll(), 4); // of which one looks into the folders
    EXPECT_EQ(decoded(), 3);
    static_cast<void>(picture(pngFile(1, 1)));
    static_cast<void>(picture(pngFile(3, 3)));
    EXPECT_EQ(decoded(), 3);
    static_cast<void>(picture(pngFile(2, 2)));
    EXPECT_EQ(decoded(), 4);
}

TEST_F(KnownPicturesTest, ExpectsNothingOfAFolderThatIsNotThere) {
    pictures_.expect("/missing", "@3x.png");
    EXPECT_EQ(prepareAll(), 1);
    EXPECT_EQ(decoded(), 0);
}

TEST_F(KnownPicturesTest, DecodesNothingThatIsNotExpectedAnyMore) {
    device_.write("/a/one@3x.png", pngFile(1, 1));
    device_.write("/a/other@3x.png", pngFile(2, 2));
    pictures_.expect("/a", "@3x.png");
    EXPECT_TRUE(pictures_.prepare());
    EXPECT_TRUE(pictures_.prepare());
    pictures_.expectNothing();
    EXPECT_EQ(prepareAll(), 0);
    EXPECT_EQ(decoded(), 1);
}

} // namespace
