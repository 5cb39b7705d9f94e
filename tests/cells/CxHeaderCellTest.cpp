#include "CxHeaderCell.h"

#include "CAGradientLayerPeer.h"
#include "CALayerPeer.h"
#include "CellFixture.h"
#include "DesktopBundle.h"
#include "DesktopColor.h"
#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "PngFile.h"
#include "QuartzCore/CAGradientLayer.h"
#include "RectGeometry.h"
#include "layout/UIStackViewPeer.h"
#include "views/UIImageViewPeer.h"
#include "views/UILabelPeer.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

namespace {

constexpr auto bundlePath = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle";

class CxHeaderCellTest : public CellFixture {
protected:
    CxHeaderCellTest() : CellFixture("CxHeaderCell") {
        device.write(std::string(bundlePath) + "/icon.png", pngFile(29, 29));
        LoadedBundles::shared().addClass(*NSClassFromString("CxHeaderCell"),
                                         DesktopBundle::withPath(bundlePath));
    }

    ~CxHeaderCellTest() override { LoadedBundles::shared().removeBundle(bundlePath); }

    Ref<CxHeaderCell> made(const Properties& properties) const {
        return dynamicCast<CxHeaderCell>(cellFor(properties));
    }

    Ref<CxHeaderCell> shown(const Properties& properties) {
        return dynamicCast<CxHeaderCell>(showRow(properties));
    }

    [[nodiscard]] static UILabelPeer& titleOf(const CxHeaderCell& cell) {
        return peerOf<UILabelPeer>(dynamic_cast<UILabel&>(*cell.mainStackView()->subviews().at(1)));
    }

    [[nodiscard]] static const UILabelPeer& descriptionOf(const CxHeaderCell& cell) {
        return peerOf<UILabelPeer>(*cell.descriptionLabel());
    }

    [[nodiscard]] static UIVisualEffectView& blurOf(const CxHeaderCell& cell) {
        return *allIn<UIVisualEffectView>(cell.contentView()).front();
    }

    [[nodiscard]] static ColorComponents white(double level, double alpha) {
        return {.red = level, .green = level, .blue = level, .alpha = alpha};
    }

    [[nodiscard]] static ColorComponents resolved(const Ref<UIColor>& color) {
        return DesktopColor::resolve(color, Traits());
    }

    /// What is seen of the content, from 0 to 1.
    [[nodiscard]] static double shownAlpha(const CxHeaderCell& cell) {
        return cell.contentView().layer().peer().shownValue(LayerProperty::Opacity)[0];
    }
};

const std::string longText = "A long description that needs more lines than one, since it says so much about "
                             "what this is and what it does.";

} // namespace

TEST_F(CxHeaderCellTest, TheTitleIsFormattedWithTheVersion) {
    EXPECT_EQ(titleOf(*made({{"title", "Corvex"}})).text(), "Corvex • 3.0.1");
    EXPECT_EQ(titleOf(*made({{"title", ""}})).text(), " • 3.0.1");
}

TEST_F(CxHeaderCellTest, AnAbsentTitleIsFormattedAsThePlatformDoes) {
    EXPECT_EQ(titleOf(*made({})).text(), "(null) • 3.0.1");
}

TEST_F(CxHeaderCellTest, TheTitleIsSetAsItIsToLook) {
    const auto cell = made({{"title", "Corvex"}});
    const auto& title = titleOf(*cell);
    EXPECT_EQ(title.fontStyle(), (FontStyle{.size = 22, .weight = FontWeight::Bold}));
    EXPECT_EQ(title.textAlignment(), NSTextAlignment::Center);
    EXPECT_EQ(resolved(title.textColor()), (ColorComponents{1, 0.8, 0, 0.9}));
}

TEST_F(CxHeaderCellTest, TheDescriptionIsSetAsItIsToLook) {
    const auto cell = made({{"description", "Text"}});
    const auto& description = descriptionOf(*cell);
    EXPECT_EQ(description.text(), "Text");
    EXPECT_EQ(description.fontStyle(), (FontStyle{.size = 16, .weight = FontWeight::Light}));
    EXPECT_EQ(description.textAlignment(), NSTextAlignment::Center);
    EXPECT_EQ(resolved(description.textColor()), white(0.9, 0.6));
    EXPECT_EQ(description.numberOfLines(), 0U);
}

TEST_F(CxHeaderCellTest, AnAbsentDescriptionTakesNoHeight) {
    const auto cell = shown({{"title", "Corvex"}});
    EXPECT_EQ(descriptionOf(*cell).text(), std::nullopt);
    EXPECT_EQ(cell->descriptionLabel()->frame().size.height, 0);
}

TEST_F(CxHeaderCellTest, ALongDescriptionWrapsAndTheRowGrows) {
    const auto cell = shown({{"title", "Corvex"}, {"description", longText}});
    const auto label = cell->descriptionLabel()->frame();
    EXPECT_GT(label.size.height, 3 * 19);
    EXPECT_LE(label.size.width, 358 - 30 - 40);
    EXPECT_FALSE(descriptionOf(*cell).isTruncated());
    EXPECT_NEAR(CGRectGetMidX(label), cell->mainStackView()->bounds().size.width / 2, 0.5);
    const auto& title = titleOf(*cell).view();
    const auto needed = 20 + 20 + 60 + 20 + title.frame().size.height + 20 + label.size.height + 20;
    EXPECT_NEAR(cell->frame().size.height, needed, 0.5);
}

TEST_F(CxHeaderCellTest, TheCardAndTheStackLieOverEachOther) {
    const auto cell = shown({{"title", "Corvex"}, {"description", "Text"}});
    const auto size = cell->contentView().bounds().size;
    const auto card = CGRectMake(15, 10, size.width - 30, size.height - 20);
    EXPECT_EQ(size.width, 358);
    EXPECT_EQ(blurOf(*cell).frame(), card);
    EXPECT_EQ(cell->mainStackView()->frame(), card);
    const auto views = cell->contentView().subviews();
    const auto placeOf = [&](const UIView& view) {
        return std::ranges::find(views, &view, &Ref<UIView>::get);
    };
    EXPECT_LT(placeOf(blurOf(*cell)), placeOf(*cell->mainStackView()));
}

TEST_F(CxHeaderCellTest, IconTitleAndDescriptionStandBelowEachOther) {
    const auto cell = shown({{"title", "Corvex"}, {"description", "Text"}});
    const auto parts = cell->mainStackView()->subviews();
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_EQ(parts[0]->frame().origin.y, 20);
    EXPECT_EQ(parts[0]->frame().size, (CGSize{60, 60}));
    EXPECT_EQ(parts[1]->frame().origin.y, 100);
    EXPECT_NEAR(parts[2]->frame().origin.y, CGRectGetMaxY(parts[1]->frame()) + 20, 1e-9);
    EXPECT_EQ(parts[2], cell->descriptionLabel());
    for (const auto& part : parts)
        EXPECT_NEAR(CGRectGetMidX(part->frame()), cell->mainStackView()->bounds().size.width / 2, 0.5);
}

TEST_F(CxHeaderCellTest, TheIconIsTheOneOfTheCellsBundle) {
    const auto cell = made({});
    const auto icon = dynamicCast<UIImageView>(cell->mainStackView()->subviews().front());
    ASSERT_TRUE(icon);
    EXPECT_TRUE(icon->image());
    EXPECT_EQ(icon->peer().contentMode(), UIViewContentMode::ScaleAspectFit);
    const auto& layer = icon->layer().peer();
    EXPECT_TRUE(layer.masksToBounds);
    EXPECT_EQ(layer.number(LayerProperty::CornerRadius), 20);
    EXPECT_EQ(layer.number(LayerProperty::BorderWidth), 1.5);
    EXPECT_EQ(layer.color(LayerProperty::BorderColor), white(1, 0.8));
    device.write(std::string(bundlePath) + "/icon.png", "no picture");
    const auto without = made({});
    EXPECT_FALSE(dynamicCast<UIImageView>(without->mainStackView()->subviews().front())->image());
}

TEST_F(CxHeaderCellTest, TheGradientIsBehindAllElseAndKeepsItsFirstSize) {
    const auto cell = shown({{"title", "Corvex"}, {"description", longText}});
    const auto& sublayers = cell->contentView().layer().peer().sublayers();
    const auto gradient = dynamicCast<CAGradientLayer>(sublayers.front());
    ASSERT_TRUE(gradient);
    EXPECT_EQ(gradient->peer().frame(), CGRectMake(0, 0, 320, 44));
    EXPECT_EQ(gradient->cornerRadius(), 15);
    EXPECT_EQ(resolved(cell->contentView().peer().backgroundColor()).alpha, 0);
}

TEST_F(CxHeaderCellTest, TheGradientGoesFromTheUpperLeftCornerToTheLowerRightOne) {
    const auto cell = made({});
    const auto gradient =
        dynamicCast<CAGradientLayer>(cell->contentView().layer().peer().sublayers().front());
    ASSERT_TRUE(gradient);
    QImage picture(100, 100, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    peerOf<CAGradientLayerPeer>(*gradient).drawLayer(painter, CGRectMake(0, 0, 100, 100), Traits());
    painter.end();
    const auto lightnessAt = [&picture](int x, int y) { return picture.pixelColor(x, y).lightness(); };
    EXPECT_LT(lightnessAt(20, 20), lightnessAt(80, 20));
    EXPECT_EQ(lightnessAt(80, 20), lightnessAt(20, 80));
    EXPECT_LT(lightnessAt(20, 80), lightnessAt(80, 80));
}

TEST_F(CxHeaderCellTest, TheCardsEdgesAreRoundAndCutItOff) {
    const auto cell = made({});
    const auto& layer = blurOf(*cell).layer().peer();
    EXPECT_TRUE(layer.backdrop);
    EXPECT_TRUE(layer.masksToBounds);
    EXPECT_EQ(layer.number(LayerProperty::CornerRadius), 15);
    EXPECT_EQ(layer.color(LayerProperty::ShadowColor), white(0, 1));
    EXPECT_EQ(layer.number(LayerProperty::ShadowOpacity), 0.15);
    EXPECT_EQ(layer.value(LayerProperty::ShadowOffset)[1], 4);
    EXPECT_EQ(layer.number(LayerProperty::ShadowRadius), 8);
}

TEST_F(CxHeaderCellTest, FadesInOnceItIsMade) {
    const auto cell = made({{"title", "Corvex"}});
    window->addSubview(cell);
    EXPECT_EQ(shownAlpha(*cell), 0);
    advance(std::chrono::milliseconds(150));
    EXPECT_NEAR(shownAlpha(*cell), 0.5, 0.01);
    advance(std::chrono::milliseconds(150));
    EXPECT_EQ(shownAlpha(*cell), 1);
}

TEST_F(CxHeaderCellTest, ARowThatChangesIsNotReadAgain) {
    const auto cell = shown({{"title", "Corvex"}, {"description", "Text"}});
    cell->refreshCellContentsWithSpecifier(*row({{"title", "Other"}, {"description", "Other"}}));
    EXPECT_EQ(titleOf(*cell).text(), "Corvex • 3.0.1");
    EXPECT_EQ(descriptionOf(*cell).text(), "Text");
}

TEST_F(CxHeaderCellTest, TheListsOwnHeightComesFirst) {
    EXPECT_EQ(shown({{"title", "Corvex"}, {"height", 300}})->frame().size.height, 300);
}
