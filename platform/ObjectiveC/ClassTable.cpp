#include "ObjectiveC/ClassTable.h"

#include <mutex>
#include <ranges>
#include <typeinfo>

ClassTable& ClassTable::shared() {
    static auto* const table = new ClassTable; // never destroyed: classes leave it as late as at exit
    return *table;
}

bool ClassTable::add(const Class& added) {
    const std::scoped_lock lock(mutex_);
    if (byName_.contains(added.name_) || byType_.contains(added.type_))
        return false;
    byName_.emplace(added.name_, &added);
    byType_.emplace(added.type_, &added);
    nearest_.clear();
    return true;
}

void ClassTable::remove(const Class& removed) {
    const std::scoped_lock lock(mutex_);
    const auto isRemoved = [&](const auto& entry) { return entry.second == &removed; };
    std::erase_if(byName_, isRemoved);
    std::erase_if(byType_, isRemoved);
    nearest_.clear();
}

const Class* ClassTable::named(std::string_view name) const {
    const std::shared_lock lock(mutex_);
    const auto found = byName_.find(name);
    return found != byName_.end() ? found->second : nullptr;
}

const Class* ClassTable::ofType(std::string_view type) const {
    const std::shared_lock lock(mutex_);
    return findOfType(type);
}

const Class& ClassTable::ofInstance(const NSObject& object) const {
    const std::string_view type = typeid(object).name();
    {
        const std::shared_lock lock(mutex_);
        if (const auto* const stated = findOfType(type))
            return *stated;
        if (const auto found = nearest_.find(type); found != nearest_.end())
            return *found->second;
    }
    const std::scoped_lock lock(mutex_);
    const auto& nearest = nearestTo(object);
    nearest_.emplace(type, &nearest);
    return nearest;
}

std::vector<const Class*> ClassTable::all() const {
    const std::shared_lock lock(mutex_);
    const auto classes = byName_ | std::views::values;
    return {classes.begin(), classes.end()};
}

const Class* ClassTable::findOfType(std::string_view type) const {
    const auto found = byType_.find(type);
    return found != byType_.end() ? found->second : nullptr;
}

const Class& ClassTable::nearestTo(const NSObject& object) const {
    // Bases precede what derives from them on every chain, so the longest chain ends at the nearest class.
    const auto depth = [this](const Class* stated) {
        std::size_t count = 0;
        for (; stated != nullptr && stated->baseType_ != stated->type_; ++count)
            stated = findOfType(stated->baseType_);
        return count;
    };
    const Class* nearest = findOfType(typeid(NSObject).name());
    for (const auto* const stated : byType_ | std::views::values) {
        if (stated->isInstance_(object) && depth(stated) > depth(nearest))
            nearest = stated;
    }
    return *nearest;
}
