#include "SettingsRootPage.h"

#include "DesktopImage.h"
#include "EntryFixture.h"
#include "KnownPictures.h"
#include "PSListControllerPeer.h"
#include "PngFile.h"
#include "PreferenceBundle.h"
#include "RectGeometry.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"
#include "tables/UITableViewCellPeer.h"

#include <QByteArray>
#include <optional>

namespace {

using Labels = std::vector<std::string>;

class SettingsRootPageTest : public EntryFixture {
protected:
    ~SettingsRootPageTest() override {
        page = nullptr;
        window = nullptr;
    }

    void show(Idiom idiom = Idiom::Phone) {
        screen.emplace(Screen::Options{.idiom = idiom});
        page = make<SettingsRootPage>();
        page->setOpeners({.about = [this] { opened.emplace_back("about"); },
                          .entry = [this](const PaneEntry& entry) { opened.push_back(entry.name); }});
        window = make<UIWindow>();
        window->setFrame(screen->bounds());
        window->setRootViewController(page);
        screen->addWindow(window);
        settle();
    }

    void tap(const std::string& id) {
        const auto frame = peer().table().view().peer().convertToScreen(rowOf(*page, id).frame);
        finger.touch(TouchPhase::Began, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
        finger.touch(TouchPhase::Ended, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
        settle();
    }

    [[nodiscard]] PSListControllerPeer& peer() const { return peerOf<PSListControllerPeer>(*page); }

    [[nodiscard]] Ref<UIImage> iconOf(const std::string& id) const {
        const auto specifier = dynamicCast<DesktopSpecifier>(page->specifierForID(id));
        EXPECT_TRUE(specifier) << id;
        return specifier ? specifier->icon() : nullptr;
    }

    [[nodiscard]] UITableViewCellAccessoryType accessoryOf(const std::string& id) const {
        const auto cell = dynamicCast<UITableViewCell>(rowOf(*page, id).view);
        EXPECT_TRUE(cell) << id;
        return cell ? peerOf<UITableViewCellPeer>(*cell).accessoryType()
                    : UITableViewCellAccessoryType::Checkmark;
    }

    std::optional<Screen> screen;
    Ref<UIWindow> window;
    Ref<SettingsRootPage> page;
    TouchDispatcher finger;
    Labels opened;
};

} // namespace

TEST_F(SettingsRootPageTest, WithoutEntriesOnlyTheDeviceIsThere) {
    show();
    EXPECT_EQ(page->peer().title(), "Settings");
    EXPECT_EQ(labelsOf(*page), Labels{"About"});
    EXPECT_EQ(peer().rows().size(), 2U) << "no second group";
}

TEST_F(SettingsRootPageTest, EachEntryHasARow) {
    writeBundleEntry("b", "B", "<key>label</key><string>Banana</string>");
    writeListEntry("apple", 1);
    show();
    EXPECT_EQ(labelsOf(*page), (Labels{"About", "apple", "Banana"}));
    EXPECT_EQ(rowOf(*page, "b").label, "Banana");
}

TEST_F(SettingsRootPageTest, RowsOpenWhatTheyStandFor) {
    writeListEntry("apple", 1);
    show();
    tap("about");
    tap("apple");
    EXPECT_EQ(opened, (Labels{"about", "apple"}));
}

TEST_F(SettingsRootPageTest, EntriesOfOneLabelOpenEachItsOwn) {
    writeBundleEntry("one", "One", "<key>label</key><string>Same</string>");
    writeBundleEntry("two", "Two", "<key>label</key><string>Same</string>");
    show();
    EXPECT_EQ(labelsOf(*page), (Labels{"About", "Same", "Same"}));
    tap("two");
    tap("one");
    EXPECT_EQ(opened, (Labels{"two", "one"}));
}

TEST_F(SettingsRootPageTest, AnEntryCalledAboutOpensItself) {
    writeListEntry("about", 1);
    show();
    const auto rows = peer().rows();
    const auto frame = peer().table().view().peer().convertToScreen(rows.back().frame);
    finger.touch(TouchPhase::Began, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
    finger.touch(TouchPhase::Ended, {CGRectGetMidX(frame), CGRectGetMidY(frame)});
    settle();
    EXPECT_EQ(opened, Labels{"about"});
    EXPECT_EQ(rows.back().label, "about");
}

TEST_F(SettingsRootPageTest, RowsWithoutOpenersDoNothing) {
    writeListEntry("apple", 1);
    show();
    page->setOpeners({});
    tap("about");
    tap("apple");
    EXPECT_EQ(opened, Labels());
    EXPECT_EQ(device.log().take(), Labels());
}

TEST_F(SettingsRootPageTest, AnEntrysIconComesFromItsBundle) {
    const auto png = QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==");
    device.write(PreferenceBundle::pathOf("Good") + "/icon.png", png.toStdString());
    writeBundleEntry("good", "Good", "<key>icon</key><string>icon.png</string>");
    show();
    ASSERT_TRUE(iconOf("good"));
    EXPECT_EQ(DesktopImage::sizeOf(*iconOf("good")), (CGSize{1, 1}));
}

TEST_F(SettingsRootPageTest, PicturesOfBundlesAreDecodedWhileNothingMoves) {
    const auto decoded = [] { return KnownPictures::shared().decodedCount(); };
    device.write(PreferenceBundle::pathOf("Good") + "/inside/row@3x.png", pngFile(87, 21));
    device.write(PreferenceBundle::pathOf("Good") + "/inside/row@2x.png", pngFile(58, 14));
    writeBundleEntry("good", "Good");
    show();
    const auto before = decoded();
    while (KnownPictures::shared().prepare()) {
    }
    EXPECT_EQ(decoded(), before + (screen->traits().displayScale < 3 ? 2 : 1));
    const auto prepared = decoded();
    EXPECT_TRUE(DesktopImage::named(PreferenceBundle::pathOf("Good") + "/inside/row.png",
                                    screen->traits().displayScale));
    EXPECT_EQ(decoded(), prepared);
}

TEST_F(SettingsRootPageTest, ExpectsNoPicturesOnceItIsGone) {
    device.write(PreferenceBundle::pathOf("Good") + "/row@3x.png", pngFile(22, 87));
    writeBundleEntry("good", "Good");
    show();
    window->setRootViewController(make<UIViewController>());
    page = nullptr;
    EXPECT_FALSE(KnownPictures::shared().prepare());
}

TEST_F(SettingsRootPageTest, AnIconThatIsNoPictureIsNone) {
    device.write(PreferenceBundle::pathOf("Bad") + "/icon.png", "\x89PNG\r\n\x1a\nand then nothing");
    writeBundleEntry("bad", "Bad", "<key>icon</key><string>icon.png</string>");
    writeBundleEntry("missing", "Bad", "<key>icon</key><string>elsewhere.png</string>");
    writeBundleEntry("number", "Bad", "<key>icon</key><integer>7</integer>");
    show();
    for (const auto* const id : {"bad", "missing", "number"})
        EXPECT_FALSE(iconOf(id)) << id;
    EXPECT_EQ(labelsOf(*page), (Labels{"About", "bad", "missing", "number"}));
}

TEST_F(SettingsRootPageTest, OnlyAPhonesRowsHaveChevrons) {
    show();
    EXPECT_EQ(accessoryOf("about"), UITableViewCellAccessoryType::DisclosureIndicator);
    page = nullptr;
    window = nullptr;
    screen.reset();
    show(Idiom::Pad);
    EXPECT_EQ(accessoryOf("about"), UITableViewCellAccessoryType::None);
}

TEST_F(SettingsRootPageTest, ShowsWhichPageIsOpenBesideIt) {
    writeListEntry("apple", 1);
    show(Idiom::Pad);
    page->showSelected("apple");
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{.section = 1, .row = 0}));
    page->showSelected("about");
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{.section = 0, .row = 0}));
    page->showSelected("nothing");
    EXPECT_EQ(peer().table().selectedRow(), (IndexPath{.section = 0, .row = 0}));
}
