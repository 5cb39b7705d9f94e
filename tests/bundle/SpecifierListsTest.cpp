// What the pages' lists of rows say: that every setting can be edited, and that whatever a row names is
// there.

#include "BundleFixture.h"
#include "Foundation/NSFileManager.h"
#include "ObjectiveC/Class.h"
#include "PreferenceBundle.h"
#include "PreferenceKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using Row = PropertyList::Dictionary;
using Rows = std::vector<Row>;
using Texts = std::set<std::string>;

const std::vector<std::string> lists{"Root",  "Banner", "Organize",   "Label",        "General",
                                     "Extra", "Color",  "Background", "BackupRestore"};
const std::set<std::string> listsWithRules{"Banner", "Organize", "Background"};
constexpr std::array sides{"left", "middle", "right"};

class SpecifierListsTest : public BundleFixture {
protected:
    [[nodiscard]] static Rows rowsOf(const std::string& list) {
        const auto file = readList(list + ".plist");
        const auto found = file.find("items");
        Rows rows;
        if (found == file.end())
            return rows;
        for (const auto& item : *found->second.getIf<PropertyList::Array>())
            rows.push_back(*item.getIf<Row>());
        return rows;
    }

    /// The rows of all lists that keep a setting.
    [[nodiscard]] static Rows settings() {
        Rows found;
        for (const auto& list : lists) {
            for (const auto& row : rowsOf(list)) {
                if (row.contains("key"))
                    found.push_back(row);
            }
        }
        return found;
    }

    [[nodiscard]] static Rows settingsWith(const std::string& property, const std::string& value) {
        Rows found;
        for (const auto& row : settings()) {
            if (textIn(row, property) == value)
                found.push_back(row);
        }
        return found;
    }
};

const PropertyList::Array& arrayIn(const Row& row, const std::string& key) {
    static const PropertyList::Array none;
    const auto found = row.find(key);
    return found == row.end() ? none : *found->second.getIf<PropertyList::Array>();
}

void insertTexts(Texts& texts, const PropertyList& value) {
    if (const auto* const text = value.getIf<std::string>())
        texts.insert(*text);
    if (const auto* const several = value.getIf<PropertyList::Array>()) {
        for (const auto& each : *several)
            insertTexts(texts, each);
    }
}

/// What the framework puts into the user's language.
Texts shownTexts(const Row& row) {
    Texts texts;
    for (const auto* const key :
         {"label", "title", "footerText", "placeholder", "staticTextMessage", "validTitles", "shortTitles"}) {
        const auto found = row.find(key);
        if (found != row.end())
            insertTexts(texts, found->second);
    }
    return texts;
}

/// The parts of a rule, which are separated by a comma and a space.
std::vector<std::string> partsOf(const std::string& rule) {
    constexpr std::string_view separator = ", ";
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (auto at = rule.find(separator); at != std::string::npos; at = rule.find(separator, from)) {
        parts.push_back(rule.substr(from, at - from));
        from = at + separator.size();
    }
    parts.push_back(rule.substr(from));
    return parts;
}

bool isColor(const std::string& text) {
    return text.size() == 8 &&
           std::ranges::all_of(text, [](unsigned char digit) { return std::isxdigit(digit) != 0; });
}

} // namespace

TEST_F(SpecifierListsTest, EverySettingButTheMasterSwitchIsEditedByOneRow) {
    std::map<std::string, int> rows;
    for (const auto& row : settings())
        ++rows[textIn(row, "key")];
    for (const auto key : PreferenceKeyCatalogue)
        EXPECT_EQ(rows[std::string(key)], key == "kEnabled" ? 0 : 1) << key;
    // The image of the icon for tweaks is a file alone; no backup carries a value for it.
    EXPECT_EQ(rows.size(), PreferenceKeyCatalogue.size() + 1);
    EXPECT_EQ(rows["kCustomIcon"], 1);
}

TEST_F(SpecifierListsTest, EverySettingSaysWhereItIsKeptAndWhatItIs) {
    for (const auto& row : settings()) {
        const auto key = textIn(row, "key");
        EXPECT_EQ(textIn(row, "defaults"), preferenceSuiteName) << key;
        EXPECT_EQ(textIn(row, "id"), key);
        EXPECT_NE(textIn(row, "label"), "") << key;
        EXPECT_EQ(row.contains("default"), textIn(row, "cellClass") != "GcImagePickerCell") << key;
    }
}

TEST_F(SpecifierListsTest, TheFirstListLeadsToEveryPage) {
    Texts pages;
    for (const auto& row : rowsOf("Root")) {
        for (const std::string side : sides) {
            if (!row.contains(side + "Class"))
                continue;
            EXPECT_EQ(textIn(row, "cellClass"), "TweakCustomCell");
            EXPECT_EQ(row.at("height"), PropertyList(120)) << "what the cell prefers";
            EXPECT_NE(textIn(row, side + "Label"), "");
            EXPECT_TRUE(pages.insert(textIn(row, side + "Class")).second) << textIn(row, side + "Class");
        }
    }
    EXPECT_EQ(pages, (Texts{"cxBannerController", "cxOrganizeController", "cxLabelController",
                            "cxGeneralController", "cxExtraController", "cxColorController",
                            "cxBackgroundController", "cxBackupRestoreController"}));
    const auto header = rowsOf("Root").at(0);
    EXPECT_EQ(textIn(header, "cellClass"), "CxHeaderCell");
    EXPECT_EQ(textIn(header, "title"), "Corvex");
    EXPECT_NE(textIn(header, "description"), "");
}

TEST_F(SpecifierListsTest, TheBackupsListHasAButtonForEachOfThreeThings) {
    const auto bundle = PreferenceBundle::load("corvexPrefs");
    ASSERT_TRUE(bundle) << bundle.error();
    const auto page = NSClassFromString("cxBackupRestoreController")->create();
    Texts actions;
    for (const auto& row : rowsOf("BackupRestore")) {
        if (textIn(row, "cell") != "PSButtonCell")
            continue;
        EXPECT_TRUE(page->respondsToSelector(textIn(row, "action"))) << textIn(row, "label");
        actions.insert(textIn(row, "action"));
    }
    EXPECT_EQ(actions, (Texts{"createBackup", "importBackup", "showBackupList"}));
}

TEST_F(SpecifierListsTest, EveryListHasATitleAndGroupsThatExplain) {
    for (const auto& list : lists) {
        EXPECT_NE(textIn(readList(list + ".plist"), "title"), "") << list;
        const auto rows = rowsOf(list);
        EXPECT_TRUE(std::ranges::any_of(rows, [](const Row& row) { return row.contains("footerText"); }) ||
                    std::ranges::any_of(rows, [](const Row& row) { return row.contains("infoMessage"); }))
            << list;
        EXPECT_EQ(textIn(rows.at(0), "cell") == "PSGroupCell", list != "Root") << list;
    }
}

TEST_F(SpecifierListsTest, ASwitchIsOffAtFirst) {
    const auto switches = settingsWith("cell", "PSSwitchCell");
    EXPECT_EQ(switches.size(), 24U);
    for (const auto& row : switches)
        EXPECT_EQ(row.at("default"), PropertyList(false)) << textIn(row, "key");
}

TEST_F(SpecifierListsTest, OnlyASwitchWithAnExplanationHasAButtonForIt) {
    auto explained = 0;
    for (const auto& row : settings()) {
        const auto hasButton = textIn(row, "cellClass") == "CXSwitchWithInfoCell";
        EXPECT_EQ(hasButton, !textIn(row, "infoMessage").empty()) << textIn(row, "key");
        EXPECT_TRUE(!hasButton || textIn(row, "cell") == "PSSwitchCell") << textIn(row, "key");
        explained += hasButton ? 1 : 0;
    }
    EXPECT_GT(explained, 0);
}

TEST_F(SpecifierListsTest, ASliderStartsBetweenItsEnds) {
    const auto sliders = settingsWith("cell", "PSSliderCell");
    EXPECT_EQ(sliders.size(), 2U);
    for (const auto& row : sliders) {
        EXPECT_LT(row.at("min").doubleValue(), row.at("max").doubleValue());
        EXPECT_GE(row.at("default").doubleValue(), row.at("min").doubleValue());
        EXPECT_LE(row.at("default").doubleValue(), row.at("max").doubleValue());
    }
}

TEST_F(SpecifierListsTest, AChoiceStartsAsOneOfItsValuesAndEachHasATitle) {
    auto choices = settingsWith("cell", "PSLinkListCell");
    EXPECT_EQ(choices.size(), 1U);
    EXPECT_EQ(textIn(choices.at(0), "detail"), "PSListItemsController");
    EXPECT_EQ(arrayIn(choices.at(0), "shortTitles").size(), arrayIn(choices.at(0), "validValues").size());
    std::ranges::copy(settingsWith("cell", "PSSegmentCell"), std::back_inserter(choices));
    EXPECT_EQ(choices.size(), 2U);
    for (const auto& row : choices) {
        const auto& values = arrayIn(row, "validValues");
        EXPECT_EQ(std::ranges::count(values, row.at("default")), 1) << textIn(row, "key");
        EXPECT_EQ(arrayIn(row, "validTitles").size(), values.size()) << textIn(row, "key");
    }
}

TEST_F(SpecifierListsTest, AColorStartsAsRedGreenBlueAndAlpha) {
    const auto colors = settingsWith("cellClass", "GcColorPickerCell");
    EXPECT_EQ(colors.size(), 6U);
    for (const auto& row : colors) {
        EXPECT_TRUE(isColor(textIn(row, "default"))) << textIn(row, "key");
        EXPECT_EQ(textIn(row, "fallback"), textIn(row, "default"));
    }
    for (const auto& row : rowsOf("Root")) {
        if (textIn(row, "cellClass") != "TweakCustomCell")
            continue;
        EXPECT_EQ(textIn(row, "iconColor").size(), 6U);
        EXPECT_TRUE(isColor(textIn(row, "iconShadowColor")));
        EXPECT_EQ(textIn(row, "fontColor"), "default");
        EXPECT_EQ(textIn(row, "renderingMode"), "true");
    }
}

TEST_F(SpecifierListsTest, TheImagesAreThoseOfTheImageFolder) {
    Texts files;
    for (const auto& row : settingsWith("cellClass", "GcImagePickerCell"))
        files.insert(textIn(row, "key") + "-IMG");
    EXPECT_EQ(files, Texts(ImageFileSet.begin(), ImageFileSet.end()));
}

TEST_F(SpecifierListsTest, ARuleNamesASwitchAboveItThatNoOtherRuleNames) {
    for (const auto& list : lists) {
        Texts switches;
        Texts named;
        for (const auto& row : rowsOf(list)) {
            if (row.contains("dynamicRule")) {
                EXPECT_TRUE(listsWithRules.contains(list)) << list;
                const auto parts = partsOf(textIn(row, "dynamicRule"));
                EXPECT_EQ(parts.size(), 3U) << textIn(row, "dynamicRule");
                EXPECT_TRUE(switches.contains(parts.at(0))) << parts.at(0);
                EXPECT_TRUE(named.insert(parts.at(0)).second) << parts.at(0);
            }
            if (textIn(row, "cell") == "PSSwitchCell")
                switches.insert(textIn(row, "id"));
        }
        EXPECT_EQ(!named.empty(), listsWithRules.contains(list)) << list;
    }
}

TEST_F(SpecifierListsTest, EveryClassThatARowNamesIsThere) {
    const auto bundle = PreferenceBundle::load("corvexPrefs");
    ASSERT_TRUE(bundle) << bundle.error();
    auto named = 0;
    for (const auto& list : lists) {
        for (const auto& row : rowsOf(list)) {
            for (const auto* const key : {"cellClass", "detail", "leftClass", "middleClass", "rightClass"}) {
                const auto name = textIn(row, key);
                if (name.empty())
                    continue;
                ++named;
                EXPECT_NE(NSClassFromString(name), nullptr) << name;
            }
        }
    }
    EXPECT_GT(named, 0);
}

TEST_F(SpecifierListsTest, EveryIconThatAButtonShowsIsThereInEachScale) {
    auto icons = 0;
    for (const auto& row : rowsOf("Root")) {
        for (const std::string side : sides) {
            EXPECT_EQ(row.contains(side + "Icon"), row.contains(side + "Class"));
            if (!row.contains(side + "Icon"))
                continue;
            ++icons;
            for (const auto* const scale : {"", "@2x", "@3x"})
                EXPECT_TRUE(NSFileManager::defaultManager().fileExistsAtPath(
                    bundlePath + "/Assets/" + textIn(row, side + "Icon") + scale + ".png"));
        }
    }
    EXPECT_EQ(icons, 8);
}

TEST_F(SpecifierListsTest, EveryTextIsThereInEveryLanguageAndNoOther) {
    for (const auto& list : lists) {
        auto shown = shownTexts({{"title", readList(list + ".plist").at("title")}});
        for (const auto& row : rowsOf(list))
            shown.merge(shownTexts(row));
        for (const std::string language : {"en", "de"}) {
            Texts translated;
            for (const auto& [text, translation] : readTexts(language, list)) {
                translated.insert(text);
                EXPECT_NE(translation, "") << text;
                EXPECT_TRUE(language != "en" || translation == text) << text;
            }
            EXPECT_EQ(translated, shown) << language << " " << list;
        }
    }
}
