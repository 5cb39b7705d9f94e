#include "PaneLoader.h"

#include "EntryPage.h"
#include "Foundation/NSLog.h"
#include "PSListControllerPeer.h"

#include <utility>

namespace {

std::expected<Ref<UIViewController>, std::string> makeListPage(const PaneEntry& entry) {
    return Ref<UIViewController>(make<EntryPage>(entry.name));
}

} // namespace

std::expected<Ref<UIViewController>, std::string> PaneLoader::makePage(const PaneEntry& entry) {
    auto page = entry.bundle.empty() ? makeListPage(entry) : makeBundlePage(entry);
    if (!page)
        return page;
    (*page)->peer().setTitle(entry.label);
    if (const auto list = dynamicCast<PSListController>(*page))
        peerOf<PSListControllerPeer>(*list).setSpecifier(make<DesktopSpecifier>(entry.row, *list));
    return page;
}

void PaneLoader::unloadBundles() {
    std::erase_if(bundles_, [](const auto& loaded) {
        const auto left = loaded.second.liveObjects();
        if (left > 0)
            NSLog("%@ objects of the bundle %@ have outlived the application.", std::to_string(left),
                  loaded.first);
        return left == 0;
    });
}

std::expected<Ref<UIViewController>, std::string> PaneLoader::makeBundlePage(const PaneEntry& entry) {
    auto loaded = bundles_.find(entry.bundle);
    if (loaded == bundles_.end()) {
        auto bundle = PreferenceBundle::load(entry.bundle);
        if (!bundle)
            return std::unexpected(bundle.error());
        loaded = bundles_.emplace(entry.bundle, std::move(*bundle)).first;
    }
    return loaded->second.makePage(entry.detail);
}
