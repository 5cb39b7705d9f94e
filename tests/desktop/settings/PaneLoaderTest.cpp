#include "PaneLoader.h"

#include "EntryFixture.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "PreferenceBundle.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"

#include <filesystem>

namespace {

class PaneLoaderTest : public EntryFixture {
protected:
    void SetUp() override {
        install("Good", "standInPage", builtCode("StandInPage"));
        writeBundleEntry("good", "Good", "<key>label</key><string>Fine</string>");
    }

    [[nodiscard]] Ref<UIViewController> pageOf(const std::string& name) {
        auto page = loader.makePage(entry(name));
        EXPECT_TRUE(page) << page.error();
        return page.value_or(nullptr);
    }

    [[nodiscard]] std::string problemWith(const std::string& name) {
        const auto page = loader.makePage(entry(name));
        return page ? "" : page.error();
    }

    Screen screen{{}};
    PaneLoader loader;
};

} // namespace

TEST_F(PaneLoaderTest, APageHasTheClassOfTheBundleAndTheTitleOfTheEntry) {
    const auto page = pageOf("good");
    EXPECT_EQ(page->isa().name(), "standInPage");
    EXPECT_EQ(page->peer().title(), "Fine");
}

TEST_F(PaneLoaderTest, EachPageIsANewOneOfTheSameCode) {
    const auto first = pageOf("good");
    const auto second = pageOf("good");
    EXPECT_NE(first, second);
    EXPECT_EQ(&first->isa(), &second->isa());
}

TEST_F(PaneLoaderTest, CodeThatIsLoadedStaysWhenItsFilesGo) {
    const auto good = entry("good");
    ASSERT_TRUE(loader.makePage(good));
    std::filesystem::remove_all(device.hostPath(PreferenceBundle::pathOf("Good")));
    const auto page = loader.makePage(good);
    ASSERT_TRUE(page) << page.error();
    EXPECT_EQ((*page)->isa().name(), "standInPage");
}

TEST_F(PaneLoaderTest, ABundleThatCouldNotBeLoadedIsTriedAgain) {
    writeBundleEntry("late", "Late");
    EXPECT_EQ(problemWith("late"), "There is no bundle “Late” in /var/jb/Library/PreferenceBundles.");
    install("Late", "standInPage", builtCode("StandInPage"));
    EXPECT_EQ(pageOf("late")->isa().name(), "standInPage");
}

TEST_F(PaneLoaderTest, AnEntryMayNameTheClassOfItsPage) {
    writeBundleEntry("helper", "Good", "<key>detail</key><string>standInHelper</string>");
    EXPECT_EQ(problemWith("helper"), "Its class “standInHelper” is no page.");
    writeBundleEntry("refusing", "Good", "<key>detail</key><string>standInRefusingPage</string>");
    EXPECT_EQ(problemWith("refusing"), "A page of its class “standInRefusingPage” cannot be made.");
    EXPECT_EQ(pageOf("good")->isa().name(), "standInPage");
}

TEST_F(PaneLoaderTest, PagesOfTheEngineAreMadeOrRefusedButNeverHarm) {
    for (const auto* const name : {"UIView", "UIWindow", "NSObject", "ProblemPage", "SplitController"}) {
        writeBundleEntry("odd", "Good", "<key>detail</key><string>" + std::string(name) + "</string>");
        EXPECT_NE(problemWith("odd"), "") << name;
    }
    for (const auto* const name : {"UIViewController", "UINavigationController", "PSListController",
                                   "SettingsRootPage", "AboutPage"}) {
        writeBundleEntry("odd", "Good", "<key>detail</key><string>" + std::string(name) + "</string>");
        const auto page = pageOf("odd");
        ASSERT_TRUE(page);
        EXPECT_EQ(page->isa().name(), name);
        const auto window = make<UIWindow>();
        window->setFrame(screen.bounds());
        window->setRootViewController(page);
        screen.addWindow(window);
        settle();
        EXPECT_EQ(page->view().bounds().size, screen.bounds().size) << name;
        screen.removeWindow(*window);
    }
}

TEST_F(PaneLoaderTest, APlainListIsAPageThatKnowsItsEntry) {
    writeEntry("plain", "<key>entry</key><dict><key>label</key><string>Plain</string><key>mark</key>"
                        "<integer>7</integer></dict><key>items</key><array/>");
    const auto page = dynamicCast<PSListController>(pageOf("plain"));
    ASSERT_TRUE(page);
    EXPECT_EQ(page->peer().title(), "Plain");
    EXPECT_EQ(peerOf<PSListControllerPeer>(*page).specifier()->propertyForKey("mark"), PropertyList(7));
}
