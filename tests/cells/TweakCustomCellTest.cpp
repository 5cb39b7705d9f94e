#include "TweakCustomCell.h"

#include "CALayerPeer.h"
#include "CellFixture.h"
#include "DesktopColor.h"
#include "DesktopImage.h"
#include "ObjectiveC/Method.h"
#include "PSListControllerPeer.h"
#include "PngFile.h"
#include "TweakButton.h"
#include "accessibility/AccessibilityElement.h"
#include "controls/UIButtonPeer.h"
#include "layout/UIStackViewPeer.h"
#include "tables/UITableViewCellPeer.h"
#include "views/UIImageViewPeer.h"
#include "views/UILabelPeer.h"

#include <algorithm>

namespace {

constexpr auto assets = "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/Assets/";

class TweakCustomCellTest : public CellFixture {
protected:
    TweakCustomCellTest() : CellFixture("TweakCustomCell") {
        for (const auto* const name : {"one", "two", "three"})
            device.write(assets + std::string(name) + ".png", pngFile(40, 40));
    }

    [[nodiscard]] static Properties fullRow() {
        return {{"leftIcon", "one"},         {"middleIcon", "two"},
                {"rightIcon", "three"},      {"leftLabel", "First"},
                {"middleLabel", "Second"},   {"rightLabel", "Third"},
                {"leftClass", "FirstPage"},  {"middleClass", "SecondPage"},
                {"rightClass", "ThirdPage"}, {"renderingMode", "true"},
                {"iconColor", "FF0000"},     {"iconShadowColor", "00ff0080"},
                {"fontColor", "0000FF"},     {"iconInset", 12}};
    }

    [[nodiscard]] static Properties with(const std::string& key, const PropertyList& value) {
        auto properties = fullRow();
        properties.insert_or_assign(key, value);
        return properties;
    }

    /// The only row of the page, shown.
    Ref<TweakCustomCell> shown(const Properties& properties) {
        return dynamicCast<TweakCustomCell>(showRow(properties));
    }

    [[nodiscard]] static std::vector<Ref<TweakButton>> buttonsOf(const UIView& cell) {
        return allIn<TweakButton>(cell);
    }

    [[nodiscard]] static std::vector<Ref<UILabel>> captionsOf(const UIView& cell) {
        std::vector<Ref<UILabel>> captions;
        for (const auto& stack : allIn<UIStackView>(cell)) {
            for (const auto& view : stack->subviews()) {
                if (auto label = dynamicCast<UILabel>(view))
                    captions.push_back(std::move(label));
            }
        }
        return captions;
    }

    [[nodiscard]] static Ref<UIStackView> mainStackOf(const UIView& cell) {
        return allIn<UIStackView>(cell).front();
    }

    [[nodiscard]] static ColorComponents resolved(const Ref<UIColor>& color) {
        return DesktopColor::resolve(color, Traits());
    }

    [[nodiscard]] static CGRect frameIn(const UIView& view, const UIView& cell) {
        return view.peer().convertTo(cell, view.bounds());
    }
};

constexpr ColorComponents clear{.red = 0, .green = 0, .blue = 0, .alpha = 0};
constexpr ColorComponents opaqueRed{.red = 1, .green = 0, .blue = 0, .alpha = 1};

} // namespace

TEST_F(TweakCustomCellTest, ItsInitialiserTakesTheRowAndKeepsItsTarget) {
    const auto specifier = row(fullRow());
    const auto cell = make<TweakCustomCell>();
    ASSERT_TRUE(cell->initWithSpecifier(specifier));
    EXPECT_EQ(cell->specifier(), specifier);
    EXPECT_EQ(cell->rootController(), page);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(*cell).reuseIdentifier(), "Cell");
    EXPECT_FALSE(make<TweakCustomCell>()->initWithSpecifier(nullptr));
}

TEST_F(TweakCustomCellTest, ItDoesNotKeepThePageAlive) {
    auto other = make<CellPage>();
    const auto cell = make<TweakCustomCell>();
    ASSERT_TRUE(cell->initWithSpecifier(make<DesktopSpecifier>(fullRow(), *other)));
    other = nullptr;
    EXPECT_FALSE(cell->rootController());
}

TEST_F(TweakCustomCellTest, NothingIsBuiltBeforeItIsInASuperview) {
    const auto cell = cellFor(fullRow());
    EXPECT_TRUE(allIn<UIStackView>(*cell).empty());
    EXPECT_FALSE(dynamicCast<TweakCustomCell>(cell)->leftIconImage());
    window->addSubview(cell);
    EXPECT_EQ(buttonsOf(*cell).size(), 3U);
}

TEST_F(TweakCustomCellTest, ACellThatIsRemovedAndAddedAgainHasASecondSetOnTopOfTheFirst) {
    const auto cell = cellFor(fullRow());
    window->addSubview(cell);
    const auto first = mainStackOf(*cell);
    cell->peer().removeFromSuperview();
    EXPECT_EQ(buttonsOf(*cell).size(), 3U);
    device.write(assets + std::string("one.png"), "no picture");
    window->addSubview(cell);
    ASSERT_EQ(buttonsOf(*cell).size(), 6U);
    const auto views = cell->subviews();
    EXPECT_LT(std::ranges::find(views, first), views.end() - 1);
    EXPECT_TRUE(dynamicCast<UIStackView>(views.back()));
    EXPECT_FALSE(buttonsOf(*cell)[3]->imageView().image());
    EXPECT_TRUE(buttonsOf(*cell)[0]->imageView().image());
}

TEST_F(TweakCustomCellTest, TheRowIs120PointsHighHoweverWideItIs) {
    const auto cell = shown(fullRow());
    EXPECT_EQ(cell->frame().size.height, 120);
    for (const auto width : {0.0, 100.0, 2000.0})
        EXPECT_EQ(cell->preferredHeightForWidth(width), 120);
}

TEST_F(TweakCustomCellTest, TheColumnsStandLeftToRightAndExtendBeyondTheStack) {
    const auto cell = shown(fullRow());
    const auto stack = mainStackOf(*cell);
    EXPECT_EQ(stack->peer().superview(), cell.get());
    EXPECT_EQ(stack->frame(), CGRectMake(20, 20, 318, 80));
    const auto columns = stack->subviews();
    ASSERT_EQ(columns.size(), 3U);
    for (const auto& column : columns) {
        EXPECT_EQ(column->frame().size, (CGSize{80, 118}));
        EXPECT_EQ(column->frame().origin.y, -19);
    }
    EXPECT_EQ(columns[0]->frame().origin.x, 0);
    EXPECT_EQ(columns[1]->frame().origin.x, 119);
    EXPECT_EQ(columns[2]->frame().origin.x, 238);
}

TEST_F(TweakCustomCellTest, AColumnIsAButtonACaptionAndASpacer) {
    const auto cell = shown(fullRow());
    for (const auto& column : mainStackOf(*cell)->subviews()) {
        const auto parts = column->subviews();
        ASSERT_EQ(parts.size(), 3U);
        EXPECT_TRUE(dynamicCast<TweakButton>(parts[0]));
        EXPECT_EQ(parts[0]->frame(), CGRectMake(0, 0, 80, 80));
        EXPECT_TRUE(dynamicCast<UILabel>(parts[1]));
        EXPECT_EQ(parts[1]->frame(), CGRectMake(0, 88, 80, 30));
        EXPECT_FALSE(parts[2]->peer().isFrameGiven());
        EXPECT_EQ(parts[2]->frame().origin.y, 126);
        EXPECT_EQ(parts[2]->frame().size.height, 0);
    }
}

TEST_F(TweakCustomCellTest, EveryButtonHasItsIconItsPageAndTheSameLooks) {
    const auto cell = shown(fullRow());
    const auto buttons = buttonsOf(*cell);
    ASSERT_EQ(buttons.size(), 3U);
    EXPECT_EQ(buttons[0]->identifier(), "FirstPage");
    EXPECT_EQ(buttons[1]->identifier(), "SecondPage");
    EXPECT_EQ(buttons[2]->identifier(), "ThirdPage");
    EXPECT_EQ(buttons[0]->imageView().image(), cell->leftIconImage());
    EXPECT_EQ(buttons[1]->imageView().image(), cell->middleIconImage());
    EXPECT_EQ(buttons[2]->imageView().image(), cell->rightIconImage());
    for (const auto& button : buttons) {
        EXPECT_TRUE(button->imageView().image());
        EXPECT_EQ(resolved(button->tintColor()), opaqueRed);
        EXPECT_EQ(button->imageView().peer().contentMode(), UIViewContentMode::ScaleAspectFit);
        EXPECT_EQ(button->imageView().frame(), CGRectMake(12, 12, 56, 56));
        const auto& layer = button->layer().peer();
        EXPECT_TRUE(layer.masksToBounds);
        EXPECT_EQ(layer.color(LayerProperty::ShadowColor), (ColorComponents{0, 1, 0, 128 / 255.0}));
        EXPECT_EQ(layer.number(LayerProperty::ShadowRadius), 5);
        EXPECT_EQ(layer.number(LayerProperty::ShadowOpacity), 0.5);
        EXPECT_EQ(layer.value(LayerProperty::ShadowOffset)[0], 1);
        EXPECT_EQ(layer.value(LayerProperty::ShadowOffset)[1], 1);
    }
}

TEST_F(TweakCustomCellTest, EachIconIsThePictureOfItsName) {
    for (const auto& [name, side] : {std::pair{"one", 10}, std::pair{"two", 20}, std::pair{"three", 30}})
        device.write(assets + std::string(name) + ".png", pngFile(side, side));
    const auto cell = shown(fullRow());
    EXPECT_EQ(DesktopImage::sizeOf(*cell->leftIconImage()), (CGSize{10, 10}));
    EXPECT_EQ(DesktopImage::sizeOf(*cell->middleIconImage()), (CGSize{20, 20}));
    EXPECT_EQ(DesktopImage::sizeOf(*cell->rightIconImage()), (CGSize{30, 30}));
}

TEST_F(TweakCustomCellTest, EveryCaptionIsSetAlike) {
    const auto captions = captionsOf(*shown(fullRow()));
    ASSERT_EQ(captions.size(), 3U);
    EXPECT_EQ(peerOf<UILabelPeer>(*captions[0]).text(), "First");
    EXPECT_EQ(peerOf<UILabelPeer>(*captions[1]).text(), "Second");
    EXPECT_EQ(peerOf<UILabelPeer>(*captions[2]).text(), "Third");
    for (const auto& caption : captions) {
        const auto& peer = peerOf<UILabelPeer>(*caption);
        EXPECT_EQ(peer.fontStyle(), (FontStyle{.size = 11, .weight = FontWeight::Medium}));
        EXPECT_EQ(peer.textAlignment(), NSTextAlignment::Center);
        EXPECT_EQ(peer.numberOfLines(), 2U);
        EXPECT_EQ(resolved(peer.textColor()), (ColorComponents{0, 0, 1, 1}));
    }
}

TEST_F(TweakCustomCellTest, ACaptionThatIsTooLongShrinksToSevenTenthsAndThenJustEnds) {
    const auto caption = captionsOf(*shown(fullRow())).front();
    const auto plain = make<UILabel>();
    plain->setFrame(caption->bounds());
    plain->setFont(UIFont::systemFontOfSize(11, UIFontWeightMedium));
    plain->setNumberOfLines(2);
    const auto longestOf = [](const Ref<UILabel>& label) {
        std::string text = "nn";
        for (; !peerOf<UILabelPeer>(*label).isTruncated(); label->setText(text))
            text += " nn";
        return text.size();
    };
    const auto longestShrunkTo = [&](double scale) {
        plain->setText("");
        plain->setAdjustsFontSizeToFitWidth(true);
        plain->setMinimumScaleFactor(scale);
        return longestOf(plain);
    };
    const auto longest = longestOf(caption);
    EXPECT_LT(longestOf(plain), longestShrunkTo(0.8)) << "of its own it does not shrink";
    EXPECT_LT(longestShrunkTo(0.8), longest);
    EXPECT_EQ(longestShrunkTo(0.7), longest);
    EXPECT_GT(longestShrunkTo(0.6), longest);
}

TEST_F(TweakCustomCellTest, OnlyTheExactTextTrueMakesTheIconsTemplates) {
    const auto isTemplate = [this](const Properties& properties) {
        const auto cell = cellFor(properties);
        window->addSubview(cell);
        const auto buttons = buttonsOf(*cell);
        const auto first = dynamicCast<DesktopImage>(buttons[0]->imageView().image())->renderingMode();
        for (const auto& button : buttons)
            EXPECT_EQ(dynamicCast<DesktopImage>(button->imageView().image())->renderingMode(), first);
        EXPECT_NE(first, UIImageRenderingMode::Automatic);
        return first == UIImageRenderingMode::AlwaysTemplate;
    };
    EXPECT_TRUE(isTemplate(with("renderingMode", "true")));
    for (const auto& value : {PropertyList("TRUE"), PropertyList("yes"), PropertyList(" true"),
                              PropertyList(true), PropertyList(1)})
        EXPECT_FALSE(isTemplate(with("renderingMode", value))) << value.description();
    auto absent = fullRow();
    absent.erase("renderingMode");
    EXPECT_FALSE(isTemplate(absent));
}

TEST_F(TweakCustomCellTest, AnIconsNameMayBeLongerThanAPathThatIsConverted) {
    const std::string folder(250, 'f');
    const auto name = folder + "/" + folder + "/" + folder + "/" + folder + "/one";
    device.write(assets + name + ".png", pngFile(40, 40));
    const auto cell = shown(fullRow());
    EXPECT_TRUE(cell->loadImageNamed(name, static_cast<long>(UIImageRenderingMode::AlwaysOriginal)));
}

TEST_F(TweakCustomCellTest, TheIconsComeFromTheAssetsUnderTheJailbreaksRoot) {
    device.write("/Library/PreferenceBundles/corvexPrefs.bundle/Assets/other.png", pngFile(40, 40));
    const auto cell = dynamicCast<TweakCustomCell>(cellFor(fullRow()));
    const auto mode = static_cast<long>(UIImageRenderingMode::AlwaysOriginal);
    EXPECT_TRUE(cell->loadImageNamed("one", mode));
    EXPECT_FALSE(cell->loadImageNamed("other", mode));
    EXPECT_FALSE(cell->loadImageNamed("nowhere", mode));
    EXPECT_FALSE(cell->loadImageNamed(std::nullopt, mode));
    device.write(assets + std::string("100%.png"), pngFile(40, 40));
    EXPECT_TRUE(cell->loadImageNamed("100%", mode));
    device.write(assets + std::string("sharp@3x.png"), pngFile(120, 120));
    EXPECT_EQ(DesktopImage::sizeOf(*cell->loadImageNamed("sharp", mode)), (CGSize{40, 40}));
}

TEST_F(TweakCustomCellTest, AnAbsentNameIsFormattedAsThePlatformDoes) {
    device.write(assets + std::string("(null).png"), pngFile(40, 40));
    const auto cell = cellFor({});
    window->addSubview(cell);
    EXPECT_TRUE(buttonsOf(*cell).front()->imageView().image());
}

TEST_F(TweakCustomCellTest, ColoursAreTextsOfHexadecimalDigits) {
    const auto cell = dynamicCast<TweakCustomCell>(cellFor({}));
    EXPECT_EQ(resolved(cell->colorFromHexString("FF0000")), opaqueRed);
    EXPECT_EQ(resolved(cell->colorFromHexString("F00")), opaqueRed);
    EXPECT_EQ(resolved(cell->colorFromHexString("FF000080")), (ColorComponents{1, 0, 0, 128 / 255.0}));
    EXPECT_EQ(resolved(cell->colorFromHexString("#FF0000")), clear);
    EXPECT_EQ(resolved(cell->colorFromHexString("default")), clear);
}

TEST_F(TweakCustomCellTest, TheDefaultFontColourFollowsTheAppearance) {
    const auto cell = dynamicCast<TweakCustomCell>(cellFor({}));
    const auto color = cell->getFontColor("default");
    EXPECT_EQ(resolved(color), systemColor(SystemColor::Label, Appearance::Light));
    EXPECT_EQ(DesktopColor::resolve(color, {.style = UserInterfaceStyle::Dark}),
              systemColor(SystemColor::Label, Appearance::Dark));
    EXPECT_EQ(resolved(cell->getFontColor("F00")), opaqueRed);
    EXPECT_EQ(resolved(cell->getFontColor("Default")), clear);
    EXPECT_EQ(resolved(cell->getFontColor(std::nullopt)), clear);
}

TEST_F(TweakCustomCellTest, WithoutPropertiesAllThreeColumnsAreThereAndEmpty) {
    const auto cell = shown({});
    const auto buttons = buttonsOf(*cell);
    ASSERT_EQ(buttons.size(), 3U);
    for (const auto& button : buttons) {
        EXPECT_FALSE(button->imageView().image());
        EXPECT_EQ(button->identifier(), std::nullopt);
        EXPECT_EQ(resolved(button->tintColor()), clear);
        EXPECT_EQ(button->layer().peer().color(LayerProperty::ShadowColor), clear);
        EXPECT_EQ(button->imageView().frame(), CGRectMake(0, 0, 80, 80));
    }
    for (const auto& caption : captionsOf(*cell)) {
        EXPECT_EQ(peerOf<UILabelPeer>(*caption).text(), std::nullopt);
        EXPECT_EQ(resolved(peerOf<UILabelPeer>(*caption).textColor()), clear);
    }
    EXPECT_EQ(cell->frame().size.height, 120);
}

TEST_F(TweakCustomCellTest, TheInsetIsReadAsASinglePrecisionNumber) {
    const auto cell = shown(with("iconInset", 0.1));
    const auto inset = static_cast<double>(0.1F);
    EXPECT_NEAR(buttonsOf(*cell).front()->imageView().frame().origin.x, inset, 1e-12);
}

TEST_F(TweakCustomCellTest, ATapSendsTheButtonToTheRowsTarget) {
    const auto cell = shown(fullRow());
    const auto buttons = buttonsOf(*cell);
    tap(*buttons[1]);
    ASSERT_EQ(page->opened.size(), 1U);
    EXPECT_EQ(page->opened.front(), buttons[1]);
    const auto identifier = page->opened.front()->performSelector("identifier");
    EXPECT_EQ(MessageTraits<std::optional<std::string>>::unpack(identifier), "SecondPage");
    tap(*buttons[0]);
    tap(*buttons[2]);
    EXPECT_EQ(page->opened, (std::vector<Ref<UIControl>>{buttons[1], buttons[0], buttons[2]}));
}

TEST_F(TweakCustomCellTest, AButtonIsCalledByItsCaption) {
    const auto cell = shown(fullRow());
    for (const auto& button : buttonsOf(*cell))
        EXPECT_EQ(button->peer().accessibility().role, AccessibilityRole::Button);
    const auto elements = AccessibilityElement::allIn(*cell);
    const auto isButton = [](const auto& element) { return element.role == AccessibilityRole::Button; };
    std::vector<std::string> names;
    for (const auto& element : elements) {
        if (isButton(element))
            names.push_back(element.label);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"First", "Second", "Third"}));
}

TEST_F(TweakCustomCellTest, ItCanHeadAGroupToo) {
    auto properties = fullRow();
    properties.insert_or_assign("cell", "PSGroupCell");
    properties.insert_or_assign("headerCellClass", "TweakCustomCell");
    page->setCachedSpecifiers({make<DesktopSpecifier>(properties, *page),
                               make<DesktopSpecifier>(Properties{{"cell", "PSLinkCell"}}, *page)});
    navigation->pushViewController(page, false);
    show(navigation);
    const auto group = peerOf<PSListControllerPeer>(*page).rows().front();
    const auto head = dynamicCast<TweakCustomCell>(group.view);
    ASSERT_TRUE(head);
    EXPECT_EQ(head->rootController(), page);
    EXPECT_EQ(head->frame().size.height, 120);
    tap(*buttonsOf(*head).front());
    EXPECT_EQ(page->opened.size(), 1U);
}
