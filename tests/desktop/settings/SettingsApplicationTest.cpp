#include "SettingsApplication.h"

#include "EntryFixture.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "navigation/UINavigationControllerPeer.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"

#include <optional>

namespace {

using Titles = std::vector<std::string>;

class SettingsApplicationTest : public EntryFixture {
protected:
    ~SettingsApplicationTest() override { end(); }

    void start(Idiom idiom) {
        install("Good", "standInPage", builtCode("StandInPage"));
        writeBundleEntry("good", "Good");
        writeBundleEntry("missing", "Missing");
        screen.emplace(Screen::Options{.idiom = idiom});
        application.emplace(loader);
        window = make<UIWindow>();
        window->setFrame(screen->bounds());
        window->setRootViewController(application->rootViewController());
        screen->addWindow(window);
        settle();
    }

    void end() {
        if (window)
            screen->removeWindow(*window);
        window = nullptr;
        application.reset();
    }

    [[nodiscard]] Titles titles() const {
        Titles all;
        for (const auto& page : peerOf<UINavigationControllerPeer>(*application->pages()).stack())
            all.push_back(page->peer().title());
        return all;
    }

    [[nodiscard]] std::string topClass() const {
        return peerOf<UINavigationControllerPeer>(*application->pages()).top()->isa().name();
    }

    /// On a tablet: the page in the column.
    [[nodiscard]] Ref<PSListController> firstPage() const {
        const auto column =
            dynamicCast<UINavigationController>(application->rootViewController()->peer().children().front());
        EXPECT_TRUE(column);
        return column ? dynamicCast<PSListController>(peerOf<UINavigationControllerPeer>(*column).top())
                      : nullptr;
    }

    [[nodiscard]] std::optional<IndexPath> selectedRow() const {
        const auto page = firstPage();
        EXPECT_TRUE(page);
        return page ? peerOf<PSListControllerPeer>(*page).table().selectedRow() : std::nullopt;
    }

    PaneLoader loader;
    std::optional<Screen> screen;
    std::optional<SettingsApplication> application;
    Ref<UIWindow> window;
};

} // namespace

TEST_F(SettingsApplicationTest, OnAPhonePagesComeOneAfterTheOther) {
    start(Idiom::Phone);
    EXPECT_EQ(application->rootViewController(), Ref<UIViewController>(application->pages()));
    EXPECT_EQ(titles(), Titles{"Settings"});
    application->openAbout(true);
    settle();
    EXPECT_EQ(titles(), (Titles{"Settings", "About"}));
}

TEST_F(SettingsApplicationTest, APaneTakesThePlaceOfWhatIsOpen) {
    start(Idiom::Phone);
    application->openAbout(false);
    application->open(entry("good"), false);
    settle();
    EXPECT_EQ(titles(), (Titles{"Settings", "good"}));
    EXPECT_EQ(topClass(), "standInPage");
}

TEST_F(SettingsApplicationTest, PanesThatAreOpenedInOneMomentEndWithTheLast) {
    start(Idiom::Phone);
    application->open(entry("good"), true);
    application->open(entry("missing"), true);
    application->openAbout(true);
    settle();
    EXPECT_EQ(titles(), (Titles{"Settings", "About"}));
}

TEST_F(SettingsApplicationTest, AfterAPaneThatCannotBeOpenedAnotherCan) {
    start(Idiom::Phone);
    application->open(entry("missing"), false);
    settle();
    EXPECT_EQ(topClass(), "ProblemPage");
    EXPECT_EQ(titles(), (Titles{"Settings", "missing"}));
    application->open(entry("good"), true);
    settle();
    EXPECT_EQ(topClass(), "standInPage");
}

TEST_F(SettingsApplicationTest, OnATabletPagesAreBesideTheFirstOne) {
    start(Idiom::Pad);
    EXPECT_EQ(application->rootViewController()->isa().name(), "SplitController");
    EXPECT_EQ(labelsOf(*firstPage()), (Titles{"About", "good", "missing"}));
    EXPECT_EQ(titles(), Titles{"About"});
    application->open(entry("good"), true);
    settle();
    EXPECT_EQ(titles(), Titles{"good"});
}

TEST_F(SettingsApplicationTest, OnATabletTheOpenPagesRowIsSelected) {
    start(Idiom::Pad);
    EXPECT_EQ(selectedRow(), (IndexPath{.section = 0, .row = 0}));
    application->open(entry("missing"), true);
    settle();
    EXPECT_EQ(selectedRow(), (IndexPath{.section = 1, .row = 1}));
    application->openAbout(true);
    settle();
    EXPECT_EQ(selectedRow(), (IndexPath{.section = 0, .row = 0}));
}

TEST_F(SettingsApplicationTest, AFirstPageThatOutlivesItOpensNothing) {
    start(Idiom::Pad);
    const auto page = dynamicCast<SettingsRootPage>(firstPage());
    end();
    page->openAbout();
    page->openEntry(page->specifierForID("good"));
    settle();
    EXPECT_EQ(device.log().take(), Titles());
}

TEST_F(SettingsApplicationTest, ItCanEndRightAfterAPaneWasOpened) {
    start(Idiom::Pad);
    const Weak<UIViewController> root(application->rootViewController());
    application->open(entry("good"), true);
    end();
    settle();
    EXPECT_FALSE(root.strong()) << "nothing that waited keeps it";
}
