#include "PanePage.h"

#include "DesktopBundle.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSString.h"
#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "PreferenceStore.h"
#include "navigation/UINavigationControllerPeer.h"

PanePage::PanePage(std::string_view className, const std::string& listName, std::string_view list,
                   const Screen::Options& options)
    : Phone(options) {
    device.write(stringByAppendingPathComponent(bundlePath, listName + ".plist"), list);
    LoadedBundles::shared().addClass(*NSClassFromString(className), DesktopBundle::withPath(bundlePath));
}

PanePage::~PanePage() {
    LoadedBundles::shared().removeBundle(bundlePath);
}

void PanePage::showPage(const Ref<UIViewController>& page) {
    show(navigation);
    peerOf<UINavigationControllerPeer>(*navigation).push(page, false);
    settle();
}

void PanePage::store(const PropertyList& value, std::string_view key) {
    const auto suite = PreferenceStore::open();
    suite->setObject(value, key);
    suite->synchronize();
}

std::optional<PropertyList> PanePage::stored(std::string_view key) {
    const auto all = dictionaryWithContentsOfFile(preferencesFile).value_or(PropertyList::Dictionary());
    const auto found = all.find(key);
    return found != all.end() ? std::optional(found->second) : std::nullopt;
}
