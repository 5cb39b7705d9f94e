#include "SettingsRootPage.h"

#include "DesktopBundle.h"
#include "DesktopImage.h"
#include "Device.h"
#include "Foundation/NSString.h"
#include "KnownPictures.h"
#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "SystemTexts.h"
#include "screen/Screen.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

constexpr double iconScale = 3; ///< the pixels per point that icons are picked for

const Class classObject = Class::define<SettingsRootPage, PSListController>(
    "SettingsRootPage", {method<"openAbout", &SettingsRootPage::openAbout>(),
                         method<"openEntry:", &SettingsRootPage::openEntry>()});

Ref<UIImage> iconIn(const std::string& folder, const std::string& name) {
    return name.empty() ? nullptr
                        : DesktopImage::named(stringByAppendingPathComponent(folder, name), iconScale);
}

Ref<DesktopSpecifier> makeGroup() {
    return make<DesktopSpecifier>(PropertyList::Dictionary{{"cell", "PSGroupCell"}});
}

} // namespace

SettingsRootPage::SettingsRootPage() {
    peer().setTitle(systemText("Settings"));
}

SettingsRootPage::~SettingsRootPage() {
    KnownPictures::shared().expectNothing();
}

PSListController::Specifiers SettingsRootPage::specifiers() {
    if (!cachedSpecifiers().empty())
        return cachedSpecifiers();
    const auto about = makeRow({{"label", systemText("About")}, {"id", aboutId}, {"action", "openAbout"}},
                               iconIn(Device::current().mainBundle()->path(), "About.png"));
    Specifiers specifiers{makeGroup(), about};
    entries_ = EntryList::read();
    expectPictures();
    if (!entries_.empty())
        specifiers.emplace_back(makeGroup());
    for (const auto& entry : entries_)
        specifiers.emplace_back(
            makeRow({{"label", entry.label}, {"id", entry.name}, {"action", "openEntry:"}},
                    iconIn(entry.folder, entry.icon)));
    setCachedSpecifiers(specifiers);
    return specifiers;
}

void SettingsRootPage::expectPictures() const {
    auto& pictures = KnownPictures::shared();
    pictures.expectNothing();
    for (const auto& entry : entries_) {
        if (entry.bundle.empty())
            continue;
        pictures.expect(entry.folder, "@3x.png");
        if (Screen::current().traits().displayScale < iconScale)
            pictures.expect(entry.folder, "@2x.png");
    }
}

Ref<PSSpecifier> SettingsRootPage::makeRow(PropertyList::Dictionary properties, const Ref<UIImage>& icon) {
    properties.insert_or_assign("cell", "PSLinkCell");
    // Beside the page that a row leads to there is nowhere to go on to.
    properties.insert_or_assign("hidesDisclosureIndicator", Screen::current().traits().idiom == Idiom::Pad);
    auto row = make<DesktopSpecifier>(std::move(properties), *this);
    row->setImage("icon", icon);
    return row;
}

void SettingsRootPage::showSelected(std::string_view id) {
    auto& list = peerOf<PSListControllerPeer>(*this);
    const auto rows = list.rows();
    const auto shown = std::ranges::find(rows, id, &ListRow::id);
    const auto path = shown == rows.end() ? std::nullopt : list.table().rowAt(shown->frame.origin);
    if (path)
        list.table().selectRow(*path);
}

void SettingsRootPage::openAbout() const {
    if (openers_.about)
        openers_.about();
}

void SettingsRootPage::openEntry(const Ref<PSSpecifier>& specifier) {
    const auto id = specifier ? specifier->propertyForKey("id") : std::nullopt;
    const auto entry = std::ranges::find_if(
        entries_, [&id](const PaneEntry& candidate) { return id == PropertyList(candidate.name); });
    if (entry != entries_.end() && openers_.entry)
        openers_.entry(PaneEntry(*entry));
}
