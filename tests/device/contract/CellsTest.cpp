// The pane's own cells, made and handled as the framework does it.

#include "CodeUnderTest.h"
#include "Framework.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class CellsTest : public testing::Test {
protected:
    ~CellsTest() override {
        showRootController(nullptr);
        showWindow(nullptr);
        putViewsInto(nullptr);
        objc_release(page);
    }

    /// A row of the page with those properties.
    [[nodiscard]] id row(std::initializer_list<std::pair<const char*, id>> properties) const {
        auto* const specifier = emptySpecifier();
        for (const auto& [key, value] : properties)
            performWithTwo(specifier, "setProperty:forKey:", value, text(key));
        perform(specifier, "setTarget:", page);
        takeJournal();
        return specifier;
    }

    /// The lines of the journal that hold any of the texts.
    [[nodiscard]] static Lines journalOf(std::initializer_list<std::string_view> texts) {
        Lines lines = takeJournal();
        std::erase_if(lines, [&](const std::string& line) {
            return std::ranges::none_of(texts, [&](std::string_view text) { return line.contains(text); });
        });
        return lines;
    }

    const id page = newByName("OpeningPage");
};

constexpr auto alertWith = "+[UIAlertController alertControllerWithTitle:message:preferredStyle:] ";
constexpr auto nothingSaid = "\"No information provided for this cell.\" 1";

} // namespace

TEST_F(CellsTest, ASwitchRowHasItsInfoButtonInPlace) {
    auto* const cell = newCell("CXSwitchWithInfoCell", 0, text("row"), row({}));
    auto lines = takeJournal();
    const auto begin = std::ranges::find(lines, "+[UIButton buttonWithType:] 4");
    ASSERT_GE(lines.end() - begin, 2);
    lines.erase(lines.begin(), begin + 2);
    EXPECT_EQ(
        lines,
        (Lines{"-[UIButton setTranslatesAutoresizingMaskIntoConstraints:] 0",
               "-[UIButton addTarget:action:forControlEvents:] CXSwitchWithInfoCell infoButtonTapped 64",
               "-[UIView addSubview:] UIButton", "-[UIButton centerYAnchor]", "-[UIView centerYAnchor]",
               "-[NSLayoutYAxisAnchor constraintEqualToAnchor:constant:] NSLayoutYAxisAnchor 0",
               "-[UIButton trailingAnchor]", "-[UIView trailingAnchor]",
               "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor -4",
               "+[NSLayoutConstraint activateConstraints:] [NSLayoutConstraint, NSLayoutConstraint]"}));
    EXPECT_EQ(perform(cell, "infoButton", nullptr), subviewOf(perform(cell, "contentView", nullptr), 0));
    objc_release(cell);
}

TEST_F(CellsTest, NothingIsLeftAliveOfCellsThatAreGone) {
    {
        const AutoreleasePool pool;
        auto* const table = newByName("UIView");
        for (const auto* const name : {"CXSwitchWithInfoCell", "CxHeaderCell", "TweakCustomCell"}) {
            auto* const cell = newCell(name, 0, text("row"), row({{"leftIcon", text("one")}}));
            moveView(cell, table);
            moveView(cell, nullptr);
            moveView(cell, table);
            perform(cell, "refreshCellContentsWithSpecifier:", row({}));
            objc_release(cell);
        }
        objc_release(table);
    }
    for (const auto* const name :
         {"CXSwitchWithInfoCell", "CxHeaderCell", "TweakCustomCell", "TweakButton", "UIButton", "UIStackView",
          "UIVisualEffectView", "UIBlurEffect", "CAGradientLayer", "UIImage", "UILabel", "UIImageView"})
        EXPECT_EQ(aliveOf(name), 0) << name;
}

TEST_F(CellsTest, TheInfoButtonHasTheCellsTint) {
    auto* const specifier = row({});
    auto* const cell = newCell("CXSwitchWithInfoCell", 0, nullptr, specifier);
    takeJournal();
    perform(cell, "refreshCellContentsWithSpecifier:", specifier);
    EXPECT_EQ(takeJournal(), (Lines{"-[CXSwitchWithInfoCell refreshCellContentsWithSpecifier:] PSSpecifier",
                                    "-[UIButton setTintColor:] tint"}));
    perform(cell, "tintColorDidChange", nullptr);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[CXSwitchWithInfoCell tintColorDidChange]", "-[UIButton setTintColor:] tint"}));
    objc_release(cell);
}

TEST_F(CellsTest, ATapExplainsTheRowAboveThePageThatItIsIn) {
    putViewsInto(page);
    auto* const cell = newCell(
        "CXSwitchWithInfoCell", 0, nullptr,
        row({{"infoTitle", text("Title")}, {"label", text("Label")}, {"infoMessage", text("One\\nTwo\\n")}}));
    takeJournal();
    perform(cell, "infoButtonTapped", nullptr);
    EXPECT_EQ(journalOf({"UIAlert", "keyWindow"}),
              (Lines{alertWith + std::string("\"Title\" \"One\nTwo\n\" 1"),
                     "+[UIAlertAction actionWithTitle:style:handler:] \"Cancel\" 1",
                     "-[UIAlertController addAction:] \"Cancel\"",
                     "-[OpeningPage presentViewController:animated:completion:] UIAlertController 1"}));
    answerAlertOf(page, 0);
    objc_release(cell);
}

TEST_F(CellsTest, ATapExplainsARowWithoutAPageAboveTheWindowsController) {
    showRootController(page);
    auto* const cell = newCell("CXSwitchWithInfoCell", 0, nullptr, row({{"label", text("Label")}}));
    takeJournal();
    perform(cell, "infoButtonTapped", nullptr);
    EXPECT_EQ(journalOf({"alertControllerWithTitle", "keyWindow", "present"}),
              (Lines{alertWith + std::string("\"Label\" ") + nothingSaid, "-[UIApplication keyWindow]",
                     "-[OpeningPage presentViewController:animated:completion:] UIAlertController 1"}));
    answerAlertOf(page, 0);
    objc_release(cell);
}

TEST_F(CellsTest, AWindowOfAClassThatNobodyKnowsIsAskedAndItsSilenceLogged) {
    auto* const window = newByName("NSMutableSet");
    showWindow(window);
    auto* const cell = newCell("CXSwitchWithInfoCell", 0, nullptr, row({}));
    takeJournal();
    perform(cell, "infoButtonTapped", nullptr);
    const auto lines = journalOf({"log", "present"});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].contains("rootViewController]: unrecognized selector sent to <NSObject: 0x"))
        << lines[0];
    objc_release(cell);
    objc_release(window);
}

TEST_F(CellsTest, ARowWithoutTextsIsExplainedWithoutATitle) {
    auto* const cell = newCell("CXSwitchWithInfoCell", 0, nullptr, row({}));
    takeJournal();
    perform(cell, "infoButtonTapped", nullptr);
    EXPECT_EQ(journalOf({"alertControllerWithTitle", "present"}),
              Lines{alertWith + std::string("nil ") + nothingSaid});
    objc_release(cell);
}

TEST_F(CellsTest, AHeaderIsBuiltFromTheBackToTheFront) {
    auto* const cell =
        newCell("CxHeaderCell", 0, nullptr, row({{"title", text("Corvex")}, {"description", text("Text")}}));
    const auto lines =
        journalOf({"setBackgroundColor", "CAGradientLayer", "Effect", "Sublayer", "addSubview", "Arranged",
                   "imageNamed", "setText:", "UIStackView bottomAnchor", "setAlpha", "animate"});
    EXPECT_EQ(lines, (Lines{"-[UIView setBackgroundColor:] clear",
                            "-[CAGradientLayer setColors:] [white(0.1, 0.3), white(0.2, 0.3)]",
                            "-[CAGradientLayer setStartPoint:] {0, 0}",
                            "-[CAGradientLayer setEndPoint:] {1, 1}",
                            "-[CAGradientLayer setFrame:] {{0, 0}, {320, 44}}",
                            "-[CAGradientLayer setCornerRadius:] 15",
                            "-[CALayer insertSublayer:atIndex:] CAGradientLayer 0",
                            "+[UIBlurEffect effectWithStyle:] 4",
                            "-[UIVisualEffectView initWithEffect:] UIBlurEffect",
                            "-[UIVisualEffectView initWithFrame:] {{0, 0}, {0, 0}}",
                            "-[UIVisualEffectView setTranslatesAutoresizingMaskIntoConstraints:] 0",
                            "-[UIVisualEffectView setClipsToBounds:] 1",
                            "-[UIView addSubview:] UIVisualEffectView",
                            "-[UIVisualEffectView leadingAnchor]",
                            "-[UIVisualEffectView trailingAnchor]",
                            "-[UIVisualEffectView topAnchor]",
                            "-[UIVisualEffectView bottomAnchor]",
                            "-[UIView addSubview:] UIStackView",
                            "+[UIImage imageNamed:inBundle:compatibleWithTraitCollection:] \"icon.png\" \"" +
                                folderOfCode() + "\" nil",
                            "-[UIStackView addArrangedSubview:] UIImageView",
                            "-[UILabel setText:] \"Corvex • 3.0.1\"",
                            "-[UIStackView addArrangedSubview:] UILabel",
                            "-[UILabel setText:] \"Text\"",
                            "-[UIStackView addArrangedSubview:] UILabel",
                            "-[UIStackView bottomAnchor]",
                            "-[UIView setAlpha:] 0",
                            "+[UIView animateWithDuration:delay:options:animations:completion:] 0.3 0 0",
                            "-[UIView setAlpha:] 1"}));
    EXPECT_EQ(describedAnswer(perform(cell, "descriptionLabel", nullptr), "text"), "\"Text\"");
    EXPECT_STREQ(class_getName(object_getClass(perform(cell, "mainStackView", nullptr))), "UIStackView");
    objc_release(cell);
}

TEST_F(CellsTest, AHeaderWithoutItsBlurHasAllTheRest) {
    refuseInitialisersOf("UIVisualEffectView");
    auto* const cell = newCell("CxHeaderCell", 0, nullptr, row({{"title", text("Corvex")}}));
    refuseInitialisersOf(nullptr);
    EXPECT_EQ(
        journalOf({"addSubview", "UIVisualEffectView", "setText:"}),
        (Lines{"-[UIVisualEffectView initWithEffect:] UIBlurEffect", "-[UIView addSubview:] UIStackView",
               "-[UILabel setText:] \"Corvex • 3.0.1\"", "-[UILabel setText:] nil"}));
    EXPECT_EQ(aliveOf("UIVisualEffectView"), 0);
    objc_release(cell);
}

TEST_F(CellsTest, TheHeadersLabelsAreSetAsTheyAreToLook) {
    auto* const cell = newCell("CxHeaderCell", 0, nullptr, row({{"description", text("Text")}}));
    auto lines = journalOf({"-[UILabel ", "+[UIFont "});
    std::erase_if(lines, [](const std::string& line) { return line.contains("initWithFrame"); });
    EXPECT_EQ(
        lines,
        (Lines{"-[UILabel setText:] \"(null) • 3.0.1\"", "+[UIFont boldSystemFontOfSize:] 22",
               "-[UILabel setFont:] 22", "-[UILabel setTextAlignment:] 1",
               "-[UILabel setTextColor:] rgba(1, 0.8, 0, 0.9)", "-[UILabel setShadowColor:] white(0, 0.5)",
               "-[UILabel setShadowOffset:] {1, 1}", "-[UILabel setAdjustsFontForContentSizeCategory:] 1",
               "-[UILabel setTranslatesAutoresizingMaskIntoConstraints:] 0", "-[UILabel setText:] \"Text\"",
               "+[UIFont systemFontOfSize:weight:] 16 -0.4", "-[UILabel setFont:] 16",
               "-[UILabel setTextAlignment:] 1", "-[UILabel setTextColor:] white(0.9, 0.6)",
               "-[UILabel setNumberOfLines:] 0", "-[UILabel setAdjustsFontForContentSizeCategory:] 1",
               "-[UILabel setTranslatesAutoresizingMaskIntoConstraints:] 0"}));
    objc_release(cell);
}

TEST_F(CellsTest, ARowOfButtonsKeepsItsTargetAndPrefersItsHeight) {
    auto* const specifier = row({});
    auto* const cell = newWithSpecifier("TweakCustomCell", specifier);
    EXPECT_EQ(takeJournal().front(),
              "-[TweakCustomCell initWithStyle:reuseIdentifier:specifier:] 0 \"Cell\" PSSpecifier");
    EXPECT_EQ(perform(cell, "specifier", nullptr), specifier);
    EXPECT_EQ(perform(cell, "rootController", nullptr), page);
    perform(cell, "setRootController:", nullptr);
    EXPECT_EQ(perform(cell, "rootController", nullptr), nullptr);
    EXPECT_EQ(preferredHeight(cell, 320), 120);
    EXPECT_EQ(preferredHeight(cell, 1024), 120);
    objc_release(cell);
    EXPECT_EQ(aliveOf("TweakCustomCell"), 0);
}

TEST_F(CellsTest, ARowOfButtonsWithoutASpecifierIsRefused) {
    EXPECT_EQ(newWithSpecifier("TweakCustomCell", nullptr), nullptr);
    EXPECT_EQ(aliveOf("TweakCustomCell"), 0);
}

TEST_F(CellsTest, ARowOfButtonsIsBuiltEachTimeItComesIntoASuperview) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr, row({{"leftIcon", text("one")}}));
    auto* const table = newByName("UIView");
    const auto stacks = [&] { return subviewCountOf(cell); };
    EXPECT_EQ(stacks(), 0U);
    moveView(cell, table);
    EXPECT_EQ(stacks(), 1U);
    takeJournal();
    moveView(cell, nullptr);
    EXPECT_EQ(takeJournal(), Lines{"-[TweakCustomCell didMoveToSuperview]"});
    moveView(cell, table);
    EXPECT_EQ(stacks(), 2U);
    EXPECT_EQ(
        journalOf({"imageNamed"}).front(),
        "+[UIImage imageNamed:] \"/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/Assets/one.png\"");
    objc_release(cell);
    objc_release(table);
}

TEST_F(CellsTest, TheRowsColumnsAreHeldAtItsEdgesAndInItsMiddle) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr, row({}));
    auto* const table = newByName("UIView");
    takeJournal();
    moveView(cell, table);
    EXPECT_EQ(journalOf({"-[TweakCustomCell top", "-[TweakCustomCell bottom", "-[TweakCustomCell leading",
                         "-[TweakCustomCell trailing", "-[TweakCustomCell center", "AxisAnchor"}),
              (Lines{"-[TweakCustomCell topAnchor]",
                     "-[NSLayoutYAxisAnchor constraintEqualToAnchor:constant:] NSLayoutYAxisAnchor 20",
                     "-[TweakCustomCell bottomAnchor]",
                     "-[NSLayoutYAxisAnchor constraintEqualToAnchor:constant:] NSLayoutYAxisAnchor -20",
                     "-[TweakCustomCell leadingAnchor]",
                     "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor 20",
                     "-[TweakCustomCell trailingAnchor]",
                     "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor -20",
                     "-[TweakCustomCell centerXAnchor]",
                     "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor 0"}));
    objc_release(cell);
    objc_release(table);
}

TEST_F(CellsTest, AButtonOfTheRowIsReadiedStepByStep) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr,
                               row({{"leftIcon", text("one")},
                                    {"leftLabel", text("First")},
                                    {"leftClass", text("FirstPage")},
                                    {"iconColor", text("F00")},
                                    {"iconShadowColor", text("0000ff80")},
                                    {"fontColor", text("default")},
                                    {"iconInset", number(12)},
                                    {"renderingMode", text("true")}}));
    auto* const table = newByName("UIView");
    moveView(cell, table);
    auto lines = takeJournal();
    const auto begin = std::ranges::find(lines, "-[TweakButton initWithFrame:] {{0, 0}, {80, 80}}");
    const auto end = std::find(begin, lines.end(), "-[TweakButton widthAnchor]");
    ASSERT_NE(end, lines.end());
    lines = Lines(begin + 1, end);
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("-[UIImageView init"); });
    EXPECT_EQ(
        lines,
        (Lines{"-[TweakButton setTintColor:] rgba(1, 0, 0, 1)",
               "-[TweakButton setImage:forState:] <one.png 2> 0",
               "-[TweakButton setContentHorizontalAlignment:] 3",
               "-[TweakButton setContentVerticalAlignment:] 3", "-[TweakButton setClipsToBounds:] 1",
               "-[UIImageView setContentMode:] 1", "-[CALayer setShadowColor:] rgba(0, 0, 1, 0.501961)",
               "-[CALayer setShadowRadius:] 5", "-[CALayer setShadowOffset:] {1, 1}",
               "-[CALayer setShadowOpacity:] 0.5", "-[TweakButton setImageEdgeInsets:] {12, 12, 12, 12}",
               "-[TweakButton setAccessibilityLabel:] \"First\"",
               "-[TweakButton addTarget:action:forControlEvents:] OpeningPage openController: 64"}));
    objc_release(cell);
    objc_release(table);
}

TEST_F(CellsTest, ACaptionOfTheRowIsReadiedStepByStep) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr,
                               row({{"leftLabel", text("First")}, {"fontColor", text("00f")}}));
    auto* const table = newByName("UIView");
    moveView(cell, table);
    auto lines = takeJournal();
    const auto begin = std::ranges::find(lines, "-[UILabel setText:] \"First\"");
    const auto end = std::find(begin, lines.end(), "-[UILabel widthAnchor]");
    ASSERT_NE(end, lines.end());
    EXPECT_EQ((Lines{begin + 1, end}),
              (Lines{"+[UIFont systemFontOfSize:weight:] 11 0.23", "-[UILabel setFont:] 11",
                     "-[UILabel setTextColor:] rgba(0, 0, 1, 1)", "-[UILabel setTextAlignment:] 1",
                     "-[UILabel setNumberOfLines:] 2", "-[UILabel setAdjustsFontSizeToFitWidth:] 1",
                     "-[UILabel setMinimumScaleFactor:] 0.7", "-[UILabel setLineBreakMode:] 0"}));
    objc_release(cell);
    objc_release(table);
}

TEST_F(CellsTest, ATapSendsTheButtonToTheRowsTarget) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr, row({{"middleClass", text("SecondPage")}}));
    auto* const table = newByName("UIView");
    moveView(cell, table);
    constexpr unsigned long touchUpInside = 64;
    auto* const button = subviewOf(subviewOf(subviewOf(cell, 0), 1), 0);
    ASSERT_STREQ(class_getName(object_getClass(button)), "TweakButton");
    sendActions(button, touchUpInside);
    EXPECT_EQ(openerOf(page, 0), button);
    EXPECT_EQ(openerOf(page, 1), nullptr);
    EXPECT_EQ(describedAnswer(button, "identifier"), "\"SecondPage\"");
    perform(button, "setIdentifier:", text("Other"));
    EXPECT_EQ(describedAnswer(button, "identifier"), "\"Other\"");
    forgetOpenersOf(page);
    objc_release(cell);
    objc_release(table);
}

TEST_F(CellsTest, TheRowsSmallerMethodsAnswerObjectiveC) {
    auto* const cell = newCell("TweakCustomCell", 0, nullptr, row({{"rightIcon", text("three")}}));
    const auto color = [&](const char* selector, const char* hex) {
        return described(perform(cell, selector, text(hex)));
    };
    takeJournal();
    EXPECT_NE(loadedImage(cell, text("one"), 2), nullptr);
    EXPECT_EQ(takeJournal().back(), "-[UIImage imageWithRenderingMode:] 2");
    EXPECT_EQ(loadedImage(cell, nullptr, 2), nullptr);
    perform(cell, "loadImages", nullptr);
    EXPECT_EQ(perform(cell, "leftIconImage", nullptr), nullptr);
    EXPECT_NE(perform(cell, "rightIconImage", nullptr), nullptr);
    EXPECT_EQ(color("colorFromHexString:", "F00"), "rgba(1, 0, 0, 1)");
    EXPECT_EQ(color("colorFromHexString:", "#F0000"), "rgba(0, 0, 0, 1)");
    EXPECT_EQ(color("getFontColor:", "default"), "label");
    EXPECT_EQ(color("getFontColor:", "00f"), "rgba(0, 0, 1, 1)");
    perform(cell, "setupUI", nullptr);
    EXPECT_EQ(subviewCountOf(cell), 1U);
    objc_release(cell);
}
