#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "DesktopImage.h"
#include "OBWelcomeControllerPeer.h"
#include "PngFile.h"
#include "PreferenceStore.h"
#include "RootPageFixture.h"
#include "UIKit/_UIBackdropView.h"
#include "controllers/UIViewControllerPeer.h"
#include "presentation/SheetContent.h"
#include "views/UIViewPeer.h"

#include <utility>

namespace {

constexpr auto markerKey = "LastVersionPopupShown";

class cxRootListControllerChangelogTest : public RootPageFixture {
protected:
    cxRootListControllerChangelogTest() : RootPageFixture(false) {}

    [[nodiscard]] Ref<OBWelcomeController> sheet() const {
        return dynamicCast<OBWelcomeController>(page->presentedViewController());
    }

    [[nodiscard]] const SheetContent& content() const { return *peerIf<SheetContent>(*sheet()); }

    /// What the sheet shows above its title.
    [[nodiscard]] Ref<DesktopImage> icon() const {
        return dynamicCast<DesktopImage>(
            peerOf<OBWelcomeControllerPeer>(*sheet()).welcomeView().header().content().image);
    }

    /// As the user does.
    void swipeDown() {
        screen.presentations().top()->dismissPresented();
        settle();
    }

    void openAnew() {
        page = make<cxRootListController>();
        navigation = make<UINavigationController>();
        show();
    }
};

} // namespace

TEST_F(cxRootListControllerChangelogTest, TheFirstOpeningShowsWhatIsNew) {
    show();
    ASSERT_TRUE(sheet());
    EXPECT_EQ(content().sheetTitle(), "Corvex");
    EXPECT_EQ(content().sheetDetail(), "3.0.1");
    EXPECT_EQ(screen.presentations().top()->details()->style, "pageSheet");
    EXPECT_TRUE(screen.presentations().top()->details()->swipeDismissable);
    EXPECT_EQ(device.log().take(), Log());
}

TEST_F(cxRootListControllerChangelogTest, TheMarkerIsStoredAsSoonAsTheSheetIsPresented) {
    static_cast<void>(navigation->view());
    window->setRootViewController(navigation);
    navigation->pushViewController(page, false);
    EXPECT_EQ(stored(markerKey), PropertyList("3.0.1")) << "no time has passed";
    settle();
}

TEST_F(cxRootListControllerChangelogTest, ItIsShownOnceForAVersion) {
    show();
    swipeDown();
    EXPECT_FALSE(page->presentedViewController());
    openAnew();
    EXPECT_FALSE(page->presentedViewController());
}

TEST_F(cxRootListControllerChangelogTest, AnyOtherMarkerShowsItOnceAndIsReplaced) {
    for (const auto& marker :
         {PropertyList("3.0.0"), PropertyList("4.0"), PropertyList(""), PropertyList("3.0.1 "),
          PropertyList(3), PropertyList(PropertyList::Array())}) {
        store(marker, markerKey);
        openAnew();
        ASSERT_TRUE(sheet()) << marker.description();
        EXPECT_EQ(stored(markerKey), PropertyList("3.0.1"));
        swipeDown();
        openAnew();
        EXPECT_FALSE(sheet()) << marker.description();
    }
}

TEST_F(cxRootListControllerChangelogTest, ARemovedMarkerShowsItAgain) {
    show();
    swipeDown();
    const auto suite = PreferenceStore::open();
    suite->removeObjectForKey(markerKey);
    suite->synchronize();
    openAnew();
    EXPECT_TRUE(sheet());
}

TEST_F(cxRootListControllerChangelogTest, ItTellsSixThingsInOrder) {
    show();
    const auto items = content().sheetItems();
    const std::vector<std::pair<std::string, std::string>> expected{
        {"New Backup & Restore System", "Added ability to create, restore, and share backups with other "
                                        "users. Export and import your settings "
                                        "easily!"},
        {"Enhanced Performance", "Faster loading times and smoother experience throughout Settings."},
        {"Better Image Handling",
         "Improved custom image loading with better memory management and faster loading times."},
        {"Improved Background System", "More reliable background color changes and smoother transitions."},
        {"General Improvements", "Bug fixes, stability improvements, and overall better user experience."},
        {"Roothide Support", "Corvex now supports Roothide"}};
    ASSERT_EQ(items.size(), expected.size());
    for (std::size_t index = 0; index < items.size(); ++index) {
        EXPECT_EQ(items[index].title, expected[index].first);
        EXPECT_EQ(items[index].description, expected[index].second);
        EXPECT_EQ(items[index].symbol, "checkmark.circle.fill");
        EXPECT_FALSE(items[index].tint);
    }
}

TEST_F(cxRootListControllerChangelogTest, WithoutAnIconFileItsIconIsTheGear) {
    show();
    ASSERT_TRUE(icon());
    EXPECT_EQ(icon()->symbolName(), "gear");
}

TEST_F(cxRootListControllerChangelogTest, AnIconFileThatIsNoPictureCountsAsNone) {
    device.write(std::string(bundlePath) + "/icon.png", "no picture");
    show();
    ASSERT_TRUE(icon());
    EXPECT_EQ(icon()->symbolName(), "gear");
}

TEST_F(cxRootListControllerChangelogTest, ItsIconIsTheBundlesOwn) {
    device.write(std::string(bundlePath) + "/icon.png", pngFile(29, 29));
    show();
    ASSERT_TRUE(icon());
    EXPECT_EQ(icon()->symbolName(), "");
    EXPECT_EQ(DesktopImage::sizeOf(*icon()), (CGSize{29, 29}));
}

TEST_F(cxRootListControllerChangelogTest, ABlurLiesBeneathEverythingInIt) {
    show();
    auto& view = sheet()->view();
    const auto beneath = dynamicCast<_UIBackdropView>(view.peer().subviews().at(0));
    ASSERT_TRUE(beneath);
    EXPECT_TRUE(beneath->layer().peer().masksToBounds);
    EXPECT_EQ(beneath->frame(), view.bounds());
    EXPECT_TRUE(beneath->layer().peer().backdrop);
    EXPECT_EQ(DesktopColor::resolve(view.peer().backgroundColor(), Traits()).alpha, 0);
    EXPECT_EQ(DesktopColor::resolve(view.peer().tintColor(), Traits()),
              (ColorComponents{.red = 1, .green = 1, .blue = 0, .alpha = 1}));
}

TEST_F(cxRootListControllerChangelogTest, ShownAgainItTakesThePlaceOfTheEarlierSheet) {
    show();
    const Weak<OBWelcomeController> earlier = sheet();
    page->showWtfChangedInThisVersion();
    settle();
    ASSERT_TRUE(sheet());
    EXPECT_FALSE(earlier.strong());
    EXPECT_EQ(screen.presentations().all().size(), 1U);
}

TEST_F(cxRootListControllerChangelogTest, ThePageEndsUnderItsSheetAndTheSheetWithIt) {
    for (const auto time : {std::chrono::milliseconds(0), std::chrono::milliseconds(100)}) {
        openAnew();
        page->showWtfChangedInThisVersion();
        advance(time);
        const Weak<cxRootListController> endedPage = page;
        const Weak<OBWelcomeController> endedSheet = sheet();
        ASSERT_TRUE(endedSheet.strong());
        page = nullptr;
        window->setRootViewController(nullptr);
        navigation = nullptr;
        settle();
        EXPECT_FALSE(endedPage.strong());
        EXPECT_FALSE(endedSheet.strong());
        EXPECT_TRUE(screen.presentations().all().empty());
        EXPECT_EQ(device.log().take(), Log());
    }
}

TEST_F(cxRootListControllerChangelogTest, AfterASwipeThePageStillHoldsTheSheetUntilItEnds) {
    show();
    const Weak<OBWelcomeController> held = sheet();
    swipeDown();
    EXPECT_TRUE(held.strong());
    window->setRootViewController(nullptr);
    navigation = nullptr;
    page = nullptr;
    settle();
    EXPECT_FALSE(held.strong());
}
