#include "objects/LiveObjects.h"

#include <algorithm>

LiveObjects& LiveObjects::shared() {
    // Never destroyed: objects end until the program's very end.
    static auto* const objects = new LiveObjects;
    return *objects;
}

void LiveObjects::add(const NSObject& object) {
    const std::scoped_lock lock(mutex_);
    objects_.insert(&object);
}

void LiveObjects::remove(const NSObject& object) {
    const std::scoped_lock lock(mutex_);
    objects_.erase(&object);
}

std::size_t LiveObjects::countOf(const Class& kind) const {
    const std::scoped_lock lock(mutex_);
    const auto isOfKind = [&kind](const NSObject* object) { return object->isa().isSubclassOf(kind); };
    return static_cast<std::size_t>(std::ranges::count_if(objects_, isOfKind));
}
