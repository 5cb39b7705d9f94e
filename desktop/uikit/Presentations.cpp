#include "Presentations.h"

#include "ObjectiveC/NSObject.h"

void Presentations::add(NSObject& object, Presented& presented) {
    std::erase_if(entries_, [](const Entry& entry) { return !entry.object.strong(); });
    entries_.push_back({Weak<NSObject>(&object), &presented});
}

void Presentations::remove(const Presented& presented) {
    std::erase_if(entries_, [&presented](const Entry& entry) { return entry.presented == &presented; });
}

std::vector<Presented*> Presentations::all() const {
    std::vector<Presented*> living;
    for (const auto& entry : entries_) {
        if (entry.object.strong())
            living.push_back(entry.presented);
    }
    return living;
}

Presented* Presentations::top() const {
    const auto living = all();
    return living.empty() ? nullptr : living.back();
}
