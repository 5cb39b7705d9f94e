#include "LoadedBundles.h"

#include "DesktopBundle.h"
#include "Device.h"
#include "ObjectiveC/ClassTable.h"

#include <set>

LoadedBundles& LoadedBundles::shared() {
    static LoadedBundles registry;
    return registry;
}

void LoadedBundles::addClassesLoadedBy(const std::function<void()>& load, const Ref<DesktopBundle>& bundle) {
    const auto before = ClassTable::shared().all();
    const std::set<const Class*> known(before.begin(), before.end());
    load();
    for (const auto* const stated : ClassTable::shared().all()) {
        if (!known.contains(stated))
            bundles_.try_emplace(stated->name(), bundle);
    }
}

void LoadedBundles::addClass(const Class& added, const Ref<DesktopBundle>& bundle) {
    bundles_.insert_or_assign(added.name(), bundle);
}

void LoadedBundles::removeBundle(std::string_view path) {
    std::erase_if(bundles_, [path](const auto& entry) { return entry.second->path() == path; });
}

std::vector<const Class*> LoadedBundles::classesOf(std::string_view path) const {
    std::vector<const Class*> own;
    for (const auto& [name, bundle] : bundles_) {
        const auto* const stated = bundle->path() == path ? NSClassFromString(name) : nullptr;
        if (stated != nullptr)
            own.push_back(stated);
    }
    return own;
}

Ref<DesktopBundle> LoadedBundles::bundleOf(const Class& asked) const {
    for (const auto* stated = &asked; stated != nullptr; stated = stated->superclass()) {
        const auto found = bundles_.find(stated->name());
        if (found != bundles_.end())
            return found->second;
    }
    return Device::current().mainBundle();
}
