#include "PreferenceStore.h"

#include "Foundation/NSDictionary.h"
#include "PreferenceKeys.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using Dictionary = PropertyList::Dictionary;

namespace {

class PreferenceStoreTest : public testing::Test {
protected:
    /// What another process that opens the suite afresh would find on disk.
    [[nodiscard]] Dictionary onDisk() const {
        return dictionaryWithContentsOfFile(preferenceFilePath).value_or(Dictionary());
    }

    /// Every catalogue key with a value that tells it from the others.
    static Dictionary everyCatalogueKey() {
        Dictionary values;
        for (const auto key : PreferenceKeyCatalogue)
            values.emplace(key, "value of " + std::string(key));
        return values;
    }

    void store(const Dictionary& values) {
        for (const auto& [key, value] : values)
            preferences->setObject(value, key);
        preferences->synchronize();
    }

    TestDevice device;
    Ref<NSUserDefaults> preferences = PreferenceStore::open();
};

} // namespace

TEST_F(PreferenceStoreTest, OnAFreshSystemEveryCatalogueKeyIsAbsent) {
    for (const auto key : PreferenceKeyCatalogue)
        EXPECT_EQ(preferences->objectForKey(key), std::nullopt) << key;
    EXPECT_EQ(PreferenceStore::catalogueValues(*preferences), Dictionary());
    EXPECT_EQ(preferences->dictionaryRepresentation(), Dictionary());
}

TEST_F(PreferenceStoreTest, OnAFreshSystemABackupIsAnEmptyDictionary) {
    const auto* const path = "/var/mobile/tmp/preferences.plist";
    EXPECT_TRUE(writeToFileAtomically(PreferenceStore::catalogueValues(*preferences), path));
    EXPECT_EQ(dictionaryWithContentsOfFile(path), Dictionary());
}

TEST_F(PreferenceStoreTest, ReadingMakesNoFile) {
    EXPECT_EQ(preferences->objectForKey("kEnabled"), std::nullopt);
    EXPECT_TRUE(preferences->synchronize());
    EXPECT_EQ(dictionaryWithContentsOfFile(preferenceFilePath), std::nullopt);
}

TEST_F(PreferenceStoreTest, WritesAreOnDiskAtThePreferenceFilesPathAfterSynchronize) {
    preferences->setObject(true, "kEnabled");
    EXPECT_TRUE(preferences->synchronize());
    EXPECT_EQ(onDisk(), (Dictionary{{"kEnabled", true}}));
    preferences->setObject(false, "kEnabled");
    EXPECT_TRUE(preferences->synchronize());
    EXPECT_EQ(onDisk(), (Dictionary{{"kEnabled", false}}));
}

TEST_F(PreferenceStoreTest, TwoOpenStoresSeeEachOthersWritesAtOnce) {
    const auto other = PreferenceStore::open();
    preferences->setObject(true, "kEnabled");
    EXPECT_EQ(other->objectForKey("kEnabled"), PropertyList(true));
}

TEST_F(PreferenceStoreTest, TheCatalogueValuesAreThoseThatAreSet) {
    store({{"kEnabled", true}, {"blurRadius", 12.5}});
    EXPECT_EQ(PreferenceStore::catalogueValues(*preferences),
              (Dictionary{{"kEnabled", true}, {"blurRadius", 12.5}}));
}

TEST_F(PreferenceStoreTest, AKeyOutsideTheCatalogueIsNeverAmongTheCatalogueValues) {
    store({{"kCustom", 1}, {"LastVersionPopupShown", "3.0.1"}, {"hideCellSeparator", true}});
    EXPECT_EQ(PreferenceStore::catalogueValues(*preferences), (Dictionary{{"kCustom", 1}}));
}

TEST_F(PreferenceStoreTest, EveryCatalogueKeySurvivesBackupWipeAndRestore) {
    const auto values = everyCatalogueKey();
    store(values);
    const auto backup = PreferenceStore::catalogueValues(*preferences);
    EXPECT_EQ(backup, values);
    PreferenceStore::removeAll(*preferences);
    EXPECT_EQ(PreferenceStore::catalogueValues(*preferences), Dictionary());
    PreferenceStore::replaceAll(*preferences, backup);
    EXPECT_EQ(PreferenceStore::catalogueValues(*preferences), values);
    EXPECT_EQ(onDisk(), values);
}

TEST_F(PreferenceStoreTest, ReplacingRemovesKeysThatTheNewValuesLack) {
    store({{"kEnabled", true}, {"kCustom", true}});
    PreferenceStore::replaceAll(*preferences, {{"kCustom", false}});
    EXPECT_EQ(preferences->dictionaryRepresentation(), (Dictionary{{"kCustom", false}}));
    EXPECT_EQ(onDisk(), (Dictionary{{"kCustom", false}}));
}

TEST_F(PreferenceStoreTest, ReplacingStoresKeysOutsideTheCatalogueToo) {
    PreferenceStore::replaceAll(*preferences, {{"somebodyElses", PropertyList::Array{1, 2}}});
    EXPECT_EQ(onDisk(), (Dictionary{{"somebodyElses", PropertyList::Array{1, 2}}}));
}

TEST_F(PreferenceStoreTest, ReplacingTakesTheMarkerOfTheVersionShownAway) {
    store({{"kEnabled", true}, {"LastVersionPopupShown", "3.0.1"}});
    PreferenceStore::replaceAll(*preferences, PreferenceStore::catalogueValues(*preferences));
    EXPECT_EQ(preferences->stringForKey("LastVersionPopupShown"), std::nullopt);
}

TEST_F(PreferenceStoreTest, RemovingAllRemovesKeysOutsideTheCatalogueToo) {
    store({{"kEnabled", true}, {"LastVersionPopupShown", "3.0.1"}, {"somebodyElses", 1}});
    PreferenceStore::removeAll(*preferences);
    EXPECT_EQ(preferences->dictionaryRepresentation(), Dictionary());
    EXPECT_EQ(onDisk(), Dictionary());
}

TEST_F(PreferenceStoreTest, RemovingAllFromAFreshSystemIsNoFailure) {
    PreferenceStore::removeAll(*preferences);
    EXPECT_EQ(preferences->dictionaryRepresentation(), Dictionary());
}

TEST_F(PreferenceStoreTest, TheMasterSwitchIsReadAsTheBooleanThatWasStored) {
    for (const auto on : {true, false}) {
        store({{"kEnabled", on}});
        const auto read = PreferenceStore::open()->objectForKey("kEnabled");
        ASSERT_TRUE(read);
        EXPECT_EQ(read->boolValue(), on);
        EXPECT_NE(read->getIf<bool>(), nullptr);
    }
}
