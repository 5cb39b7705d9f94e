#include "FontFaces.h"

#include "Steps.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <QString>
#include <QTextLayout>
#include <set>
#include <utility>

namespace {

QRawFont faceOf(const FontStyle& style) {
    return QRawFont::fromFont(FontFaces::font(style));
}

/// The height of a capital as the font draws it, in points.
double capitalHeight(const FontStyle& style) {
    QPainterPath path;
    path.addText(0, 0, FontFaces::font(style), "H");
    return path.boundingRect().height() * FontFaces::unit(style);
}

} // namespace

TEST(FontFacesTest, TheFacesAreInstalled) {
    const auto found = FontFaces::check();
    EXPECT_TRUE(found.has_value()) << found.error();
}

TEST(FontFacesTest, SaysWhichFamiliesAreMissingAndWhoHasThem) {
    const std::string beginning = "the font families that texts are set in are not installed: ";
    EXPECT_TRUE(FontFaces::check({"Inter", "DejaVu Sans", "Inter Display"}).has_value());
    EXPECT_EQ(FontFaces::check({"Inter", "DejaVu Sans"}).error(),
              beginning + "Inter Display (Debian package fonts-inter)");
    EXPECT_EQ(FontFaces::check({"Courier", "Inter Display"}).error(),
              beginning +
                  "Inter (Debian package fonts-inter), DejaVu Sans (Debian package fonts-dejavu-core)");
}

TEST(FontFacesTest, TextsFromTwentyPointsOnAreInTheDisplayFace) {
    EXPECT_EQ(faceOf({.size = 19.9}).familyName(), "Inter");
    EXPECT_EQ(faceOf({.size = 20}).familyName(), "Inter Display");
}

TEST(FontFacesTest, EachWeightHasAFaceOfItsOwn) {
    for (const double size : {17.0, 34.0}) {
        EXPECT_EQ(faceOf({size, FontWeight::Regular}).weight(), 400);
        EXPECT_EQ(faceOf({size, FontWeight::Medium}).weight(), 500);
        EXPECT_EQ(faceOf({size, FontWeight::Semibold}).weight(), 600);
        EXPECT_EQ(faceOf({size, FontWeight::Bold}).weight(), 700);
    }
}

TEST(FontFacesTest, HasOneStyleOfEachFace) {
    std::set<std::pair<QString, int>> faces;
    for (const auto& style : FontFaces::styles())
        faces.emplace(faceOf(style).familyName(), faceOf(style).weight());
    std::set<std::pair<QString, int>> expected;
    for (const auto* const family : {"Inter", "Inter Display"}) {
        for (const auto weight : {300, 400, 500, 600, 700})
            expected.emplace(family, weight);
    }
    EXPECT_EQ(faces, expected);
    EXPECT_EQ(FontFaces::styles().size(), expected.size());
}

TEST(FontFacesTest, CapitalsAreAsHighAsThePlatforms) {
    for (const double size : {11.0, 13.0, 17.0, 20.0, 34.0, 100.0}) {
        const FontStyle style{.size = size};
        EXPECT_NEAR(capitalHeight(style), style.capHeight(), 0.003 * size) << size;
    }
}

TEST(FontFacesTest, TextsAreNotHinted) {
    EXPECT_EQ(FontFaces::font({}).hintingPreference(), QFont::PreferNoHinting);
    EXPECT_EQ(QFontInfo(FontFaces::font({})).family(), "Inter");
}

TEST(FontFacesTest, WhatTheyLackIsInTheSameFaceOnEverySystem) {
    EXPECT_EQ(FontFaces::font({.size = 34}).families(), (QStringList{"Inter Display", "DejaVu Sans"}));
    for (const auto* const text : {"ש", "ش"}) {
        QTextLayout layout(QString::fromUtf8(text), FontFaces::font({}));
        layout.beginLayout();
        static_cast<void>(layout.createLine());
        layout.endLayout();
        ASSERT_EQ(layout.glyphRuns().size(), 1) << text;
        EXPECT_EQ(layout.glyphRuns().first().rawFont().familyName(), "DejaVu Sans") << text;
    }
}

TEST(FontFacesTest, AnAdvanceGrowsWithTheSizeSmoothly) {
    const auto advance = [](double size) {
        const FontStyle style{.size = size};
        return QFontMetricsF(FontFaces::font(style)).horizontalAdvance("nnnnnnnnnn") * FontFaces::unit(style);
    };
    for (const double size : steps(9, 19, 0.5))
        EXPECT_NEAR(advance(size + 0.5) / advance(size), (size + 0.5) / size, 0.01) << size;
    for (const double size : steps(20, 40, 0.5))
        EXPECT_NEAR(advance(size + 0.5) / advance(size), (size + 0.5) / size, 0.01) << size;
}

TEST(FontFacesTest, ASizeOfZeroIsNoError) {
    EXPECT_GT(FontFaces::unit({.size = 0}), 0);
}
