#include "Foundation/NSDictionary.h"
#include "Foundation/NSUserDefaults.h"
#include "PageFixture.h"
#include "RectGeometry.h"
#include "preferences/PreferenceFolder.h"
#include "system/DarwinNotifications.h"
#include "views/UILabelPeer.h"

#include <algorithm>
#include <iterator>

namespace {

using namespace std::chrono_literals;
using PSListControllerTest = PageFixture;
using Texts = std::vector<std::string>;

Texts identifiers(const std::vector<ListRow>& rows) {
    Texts found;
    std::ranges::transform(rows, std::back_inserter(found), &ListRow::id);
    return found;
}

} // namespace

TEST_F(PSListControllerTest, ShowsTheRowsOfItsBundlesList) {
    writeList({row("PSGroupCell", "head"), row("PSStaticTextCell", "a"), row("PSLinkCell", "b")});
    show();
    const auto rows = peer().rows();
    EXPECT_EQ(identifiers(rows), (Texts{"head", "a", "b"}));
    EXPECT_EQ(rows[1].label, "Row a");
    EXPECT_EQ(rows[1].cell, "PSStaticTextCell");
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Row a");
    EXPECT_EQ(page_->loads, 1U);
    EXPECT_TRUE(log().empty());
}

TEST_F(PSListControllerTest, TellsWhereEachRowIs) {
    writeList({row("PSStaticTextCell", "a"), row("PSGroupCell", "head"),
               row("PSStaticTextCell", "hidden", value("height", "<integer>0</integer>")),
               row("PSStaticTextCell", "high", value("height", "<real>90</real>") + no("enabled"))});
    show();
    EXPECT_EQ(listRow("a").frame, CGRectMake(16, 35, 358, 44));
    EXPECT_EQ(listRow("hidden").height, 0);
    EXPECT_EQ(listRow("high").height, 90);
    EXPECT_FALSE(listRow("high").enabled);
    EXPECT_TRUE(listRow("a").enabled);
    EXPECT_NEAR(listRow("head").height, 38, 0.4);
    EXPECT_TRUE(listRow("head").view);
    EXPECT_EQ(listRow("a").value, std::nullopt);
}

TEST_F(PSListControllerTest, TakesTheTitleOfTheListOrOfTheRowItWasOpenedFrom) {
    writeList({}, "The list");
    show();
    EXPECT_EQ(peer().title(), "The list");
    const auto opened = make<ListedPage>();
    peerOf<PSListControllerPeer>(*opened).setSpecifier(
        make<DesktopSpecifier>(PropertyList::Dictionary{{"label", "The row"}}));
    static_cast<void>(opened->specifiers());
    EXPECT_EQ(peerOf<PSListControllerPeer>(*opened).title(), "The row");
}

TEST_F(PSListControllerTest, FindsRowsByIdentifier) {
    writeList({row("PSGroupCell", "head"), keptRow("PSSwitchCell", "a"), row("PSLinkCell", "b")});
    show();
    EXPECT_EQ(page_->specifierForID("b"), page_->specifiers()[2]);
    EXPECT_EQ(page_->specifierForID("c"), nullptr);
}

TEST_F(PSListControllerTest, ReadsWhatIsKeptElseTheDefault) {
    writeList({keptRow("PSSwitchCell", "a", value("default", "<integer>7</integer>")),
               keptRow("PSSwitchCell", "b"), row("PSSwitchCell", "c", text("key", "c") + yes("default"))});
    show();
    EXPECT_EQ(page_->readPreferenceValue(specifier("a")), PropertyList(7));
    EXPECT_EQ(page_->readPreferenceValue(specifier("b")), std::nullopt);
    EXPECT_EQ(page_->readPreferenceValue(specifier("c")), PropertyList(true));
    page_->setPreferenceValue("kept", specifier("a"));
    EXPECT_EQ(page_->readPreferenceValue(specifier("a")), PropertyList("kept"));
    EXPECT_EQ(listRow("a").value, PropertyList("kept"));
}

TEST_F(PSListControllerTest, KeepsValuesOnDisk) {
    writeList({keptRow("PSSwitchCell", "a"), keptRow("PSSwitchCell", "b", yes("default"))});
    show();
    peer().setValue(specifier("a"), true);
    const auto file = std::string(PreferenceFolder::path) + "/" + domain + ".plist";
    const auto kept = dictionaryWithContentsOfFile(file);
    EXPECT_EQ(kept, (PropertyList::Dictionary{{"a", true}}));
    peer().setValue(specifier("a"), std::nullopt);
    EXPECT_EQ(dictionaryWithContentsOfFile(file), PropertyList::Dictionary());
}

TEST_F(PSListControllerTest, NeverWritesDefaults) {
    writeList({keptRow("PSSwitchCell", "a", yes("default"))});
    show();
    EXPECT_EQ(listRow("a").value, PropertyList(true));
    EXPECT_EQ(NSUserDefaults::initWithSuiteName(domain)->objectForKey("a"), std::nullopt);
}

TEST_F(PSListControllerTest, PostsTheNotificationAfterEachWrite) {
    writeList({keptRow("PSSwitchCell", "a", text("PostNotification", "com.example.changed")),
               keptRow("PSSwitchCell", "b"),
               row("PSSwitchCell", "c", text("PostNotification", "com.example.other"))});
    show();
    auto& notifications = Device::current().notifications();
    peer().setValue(specifier("a"), true);
    peer().setValue(specifier("a"), true);
    peer().setValue(specifier("b"), true);
    peer().setValue(specifier("c"), true);
    EXPECT_EQ(notifications.take(), (Texts{"com.example.changed", "com.example.changed"}));
}

TEST_F(PSListControllerTest, RowsMayHaveTheirOwnGetterAndSetter) {
    writeList(
        {keptRow("PSTitleValueCell", "a", text("get", "ownValue:") + text("set", "setOwnValue:specifier:"))});
    show();
    EXPECT_EQ(listRow("a").value, PropertyList("own value of a"));
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text(), "own value of a");
    peer().setValue(specifier("a"), 3);
    EXPECT_EQ(page_->events, (Texts{"set a to 3"}));
}

TEST_F(PSListControllerTest, SettingAValueShowsIt) {
    writeList({keptRow("PSTitleValueCell", "a")});
    show();
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text(), std::nullopt);
    peer().setValue(specifier("a"), "shown");
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text(), "shown");
}

TEST_F(PSListControllerTest, ReloadingARowShowsItsProperties) {
    writeList({row("PSStaticTextCell", "a"), row("PSStaticTextCell", "b")});
    show();
    cellPeer("a").textLabel().setText("Other");
    peer().reloadSpecifier(specifier("b"));
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Other");
    peer().reloadSpecifier(specifier("a"));
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Row a");
    peer().reloadSpecifier(*make<DesktopSpecifier>(PropertyList::Dictionary{}));
    screen.layoutIfNeeded();
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Row a");
}

TEST_F(PSListControllerTest, ReloadingAllAsksForTheListAnew) {
    writeList({row("PSStaticTextCell", "a")});
    show();
    writeList({row("PSStaticTextCell", "b"), row("PSStaticTextCell", "c")});
    page_->reloadSpecifiers();
    EXPECT_EQ(identifiers(peer().rows()), (Texts{"b", "c"}));
    EXPECT_EQ(page_->loads, 2U);
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("c").textLabel()).text(), "Row c");
}

TEST_F(PSListControllerTest, ScrollsRowsIntoView) {
    std::vector<std::string> items(60);
    for (std::size_t number = 0; number < items.size(); ++number)
        items[number] = row("PSStaticTextCell", std::to_string(number));
    writeList(items);
    show();
    EXPECT_FALSE(listRow("50").view);
    peer().scrollRowIntoView(50);
    ASSERT_TRUE(listRow("50").view);
    const auto frame = peer().table().view().peer().convertToScreen(listRow("50").frame);
    EXPECT_GT(frame.origin.y, 91);
    EXPECT_LE(CGRectGetMaxY(frame), 844 - 34);
    peer().scrollRowIntoView(1000);
    EXPECT_TRUE(listRow("50").view);
}

TEST_F(PSListControllerTest, AListThatIsNotThereIsAnEmptyPage) {
    show();
    EXPECT_TRUE(peer().rows().empty());
    EXPECT_FALSE(log().empty());
}

TEST_F(PSListControllerTest, ValuesAndReloadsBeforeTheViewIsThereDoNoHarm) {
    writeList({keptRow("PSSwitchCell", "a")});
    const auto page = make<ListedPage>();
    page->reloadSpecifiers();
    auto& early = peerOf<PSListControllerPeer>(*page);
    early.setValue(dynamic_cast<DesktopSpecifier&>(*page->specifierForID("a")), true);
    EXPECT_FALSE(early.isViewLoaded());
    EXPECT_EQ(identifiers(early.rows()), (Texts{"a"}));
}

TEST_F(PSListControllerTest, TheTableOutlivesThePage) {
    writeList({row("PSButtonCell", "a", text("action", "tapped:"))});
    auto page = make<ListedPage>();
    const auto view = retain(&page->view());
    view->setFrame(screen.bounds());
    window->addSubview(view);
    screen.layoutIfNeeded();
    page = nullptr;
    screen.layoutIfNeeded();
    finger.touch(TouchPhase::Began, {200, 100});
    finger.touch(TouchPhase::Ended, {200, 100});
    advance(1s);
    view->peer().removeFromSuperview();
}
