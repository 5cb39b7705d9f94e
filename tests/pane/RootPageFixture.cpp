#include "RootPageFixture.h"

#include "DesktopBundle.h"
#include "Device.h"
#include "Foundation/NSDictionary.h"
#include "LoadedBundles.h"
#include "PreferenceStore.h"
#include "controllers/UIViewControllerPeer.h"
#include "navigation/UINavigationControllerPeer.h"
#include "views/UIViewPeer.h"

namespace {

constexpr auto preferences = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
constexpr auto list =
    R"(<plist version="1.0"><dict><key>title</key><string>Corvex</string><key>items</key><array>
       <dict><key>cell</key><string>PSGroupCell</string></dict>
       <dict><key>cell</key><string>PSSwitchCell</string><key>key</key><string>removeSOS</string>
       <key>defaults</key><string>com.orvel.corvexprefs</string></dict></array></dict></plist>)";

} // namespace

RootPageFixture::RootPageFixture(bool knowsWhatIsNew) {
    device.write(std::string(bundlePath) + "/Root.plist", list);
    LoadedBundles::shared().addClass(*NSClassFromString("cxRootListController"),
                                     DesktopBundle::withPath(bundlePath));
    if (knowsWhatIsNew)
        store("3.0.1", "LastVersionPopupShown");
    page = make<cxRootListController>();
}

RootPageFixture::~RootPageFixture() {
    LoadedBundles::shared().removeBundle(bundlePath);
}

void RootPageFixture::show() {
    Phone::show(navigation);
    peerOf<UINavigationControllerPeer>(*navigation).push(page, false);
    settle();
}

DesktopNavigationItem& RootPageFixture::item() const {
    return page->peer().navigationItem();
}

Ref<GlintImageSwitch> RootPageFixture::masterSwitch() const {
    return dynamicCast<GlintImageSwitch>(item().titleView());
}

const DesktopBarButtonItem& RootPageFixture::gear() const {
    return dynamic_cast<const DesktopBarButtonItem&>(*item().rightItems().at(0));
}

const DesktopMenu& RootPageFixture::menu() const {
    return dynamic_cast<const DesktopMenu&>(*gear().content().menu);
}

void RootPageFixture::store(const PropertyList& value, std::string_view key) {
    const auto suite = PreferenceStore::open();
    suite->setObject(value, key);
    suite->synchronize();
}

std::optional<PropertyList> RootPageFixture::stored(std::string_view key) {
    const auto all = dictionaryWithContentsOfFile(preferences);
    const auto found = all ? all->find(key) : PropertyList::Dictionary::const_iterator();
    return all && found != all->end() ? std::optional(found->second) : std::nullopt;
}

void RootPageFixture::tapMasterSwitch() {
    const auto middle = masterSwitch()->peer().convertToScreen(CGPoint{25, 15});
    tap(middle);
}
