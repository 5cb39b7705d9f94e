#include "PreferenceBundle.h"

#include "BundleFixture.h"
#include "LoadedBundles.h"

#include <string>

namespace {

class PreferenceBundleTest : public BundleFixture {
protected:
    using BundleFixture::BundleFixture;

    /// Why the bundle cannot be loaded; "" when it is.
    [[nodiscard]] static std::string problemWith(const std::string& name) {
        const auto bundle = PreferenceBundle::load(name);
        return bundle ? "" : bundle.error();
    }

    [[nodiscard]] static std::string problemWithPage(const PreferenceBundle& bundle,
                                                     const std::string& className) {
        const auto page = bundle.makePage(className);
        return page ? "" : page.error();
    }

    const std::string path = PreferenceBundle::pathOf("Pane");
};

class GermanPreferenceBundleTest : public PreferenceBundleTest {
protected:
    GermanPreferenceBundleTest() : PreferenceBundleTest({.locale = "de_DE"}) {}
};

} // namespace

TEST_F(PreferenceBundleTest, MakesAPageOfItsPrincipalClass) {
    install("Pane", "standInPage", builtCode("StandInPage"));
    const auto bundle = PreferenceBundle::load("Pane");
    ASSERT_TRUE(bundle) << bundle.error();
    const auto page = bundle->makePage();
    ASSERT_TRUE(page) << page.error();
    EXPECT_EQ((*page)->isa().name(), "standInPage");
    EXPECT_EQ(LoadedBundles::shared().bundleOf((*page)->isa())->path(), path);
}

TEST_F(PreferenceBundleTest, EachPageIsANewOne) {
    install("Pane", "standInPage", builtCode("StandInPage"));
    const auto bundle = PreferenceBundle::load("Pane");
    ASSERT_TRUE(bundle) << bundle.error();
    EXPECT_NE(bundle->makePage().value(), bundle->makePage().value());
}

TEST_F(PreferenceBundleTest, ItsClassesGoWithIt) {
    install("Pane", "standInPage", builtCode("StandInPage"));
    {
        const auto bundle = PreferenceBundle::load("Pane");
        ASSERT_TRUE(bundle) << bundle.error();
        ASSERT_NE(NSClassFromString("standInPage"), nullptr);
    }
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr);
}

TEST_F(PreferenceBundleTest, SaysThatThereIsNoBundle) {
    EXPECT_EQ(problemWith("Pane"), "There is no bundle “Pane” in /var/jb/Library/PreferenceBundles.");
}

TEST_F(PreferenceBundleTest, ANameThatIsAPathNamesNoBundle) {
    install("Pane", "standInPage", builtCode("StandInPage"));
    for (const auto* name : {"", ".", "../PreferenceBundles/Pane", "/Pane"})
        EXPECT_TRUE(problemWith(name).starts_with("There is no bundle")) << name;
}

TEST_F(PreferenceBundleTest, SaysThatThereIsNoInfo) {
    device.write(path + "/code", builtCode("StandInPage"));
    EXPECT_EQ(problemWith("Pane"), "There is no " + path + "/Info.plist.");
}

TEST_F(PreferenceBundleTest, SaysThatTheInfoIsDamaged) {
    device.write(path + "/Info.plist", "bplist00 and then nothing");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist is damaged: it is no property list.");
}

TEST_F(PreferenceBundleTest, SaysThatTheInfoNamesNoCodeOrNoClass) {
    writeInfo("Pane", "<key>NSPrincipalClass</key><string>standInPage</string>");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist names no code.");
    writeInfo("Pane", "<key>CFBundleExecutable</key><string>code</string>");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist names no principal class.");
    writeInfo("Pane", "<key>CFBundleExecutable</key><string>code</string>"
                      "<key>NSPrincipalClass</key><integer>1</integer>");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist names no principal class.");
}

TEST_F(PreferenceBundleTest, SaysThatThereIsNoCode) {
    writeInfo("Pane", "<key>CFBundleExecutable</key><string>code</string>"
                      "<key>NSPrincipalClass</key><string>standInPage</string>");
    EXPECT_EQ(problemWith("Pane"), "There is no code at " + path + "/code.");
}

TEST_F(PreferenceBundleTest, SaysThatTheCodeCannotBeLoaded) {
    install("Pane", "standInPage", "not a library");
    EXPECT_EQ(problemWith("Pane"), path + "/code is no library.");
}

TEST_F(PreferenceBundleTest, SaysThatTheClassIsNotThere) {
    install("Pane", "elsewhere", builtCode("StandInPage"));
    EXPECT_EQ(problemWith("Pane"), "No class in it is called “elsewhere”.");
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr);
}

TEST_F(PreferenceBundleTest, SaysThatTheClassIsNoPage) {
    install("Pane", "standInHelper", builtCode("StandInPage"));
    EXPECT_EQ(problemWith("Pane"), "Its class “standInHelper” is no page.");
    install("Pane", "NSObject", builtCode("StandInPage"));
    EXPECT_EQ(problemWith("Pane"), "Its class “NSObject” is no page.");
}

TEST_F(PreferenceBundleTest, APageCanBeMadeOfAnotherClass) {
    install("Pane", "standInPage", builtCode("StandInPage"));
    const auto bundle = PreferenceBundle::load("Pane");
    ASSERT_TRUE(bundle) << bundle.error();
    EXPECT_EQ(problemWithPage(*bundle, "standInRefusingPage"),
              "A page of its class “standInRefusingPage” cannot be made.");
    EXPECT_EQ(problemWithPage(*bundle, "standInHelper"), "Its class “standInHelper” is no page.");
    EXPECT_EQ(problemWithPage(*bundle, "nowhere"), "No class in it is called “nowhere”.");
}

TEST_F(GermanPreferenceBundleTest, SaysItInTheDevicesLanguage) {
    EXPECT_EQ(problemWith("Pane"), "Das Bundle „Pane“ gibt es in /var/jb/Library/PreferenceBundles nicht.");
    device.write(path + "/Info.plist", "no list");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist ist beschädigt: Es ist keine Property-Liste.");
    writeInfo("Pane", "<key>NSPrincipalClass</key><string>page</string>");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist nennt keinen Code.");
    writeInfo("Pane", "<key>CFBundleExecutable</key><string>code</string>");
    EXPECT_EQ(problemWith("Pane"), path + "/Info.plist nennt keine Hauptklasse.");
    install("Pane", "elsewhere", builtCode("StandInPage"));
    EXPECT_EQ(problemWith("Pane"), "Keine Klasse darin heißt „elsewhere“.");
}
