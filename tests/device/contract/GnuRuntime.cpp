// What GNU's Objective-C runtime lacks of Apple's: ownership as functions, weak references and associated
// objects.

#include "Runtime.h"

#include <map>
#include <mutex>
#include <set>
#include <unordered_map>
#include <utility>

namespace {

using ObjectFunction = id (*)(id, SEL);

id call(id receiver, const char* selector) {
    if (receiver == nullptr)
        return nullptr;
    const auto* const name = sel_registerName(selector);
    return reinterpret_cast<ObjectFunction>(messageFunction(receiver, name))(receiver, name);
}

/// All weak references and associations.
struct Tables {
    static Tables& shared() {
        static auto* const tables = new Tables;
        return *tables;
    }

    std::recursive_mutex mutex;
    std::unordered_map<id, std::set<id*>> weakSlots;
    std::set<const void*> ending; ///< from the last owner's release to the end of `dealloc`
    std::unordered_map<id, std::map<const void*, id>> associations; ///< each with an owner's count
};

} // namespace

// Called by the root class; see EndOfObjects.m.
extern "C" {
bool takeOwnerAway(id object, bool (*isLast)(id), bool (*takeAway)(id)) {
    auto& tables = Tables::shared();
    const std::scoped_lock lock(tables.mutex); // so that nobody finds the object between the two
    if (isLast(object)) {
        if (const auto ended = tables.weakSlots.extract(object); !ended.empty()) {
            for (auto* const slot : ended.mapped())
                *slot = nullptr;
        }
        tables.ending.insert(object);
    }
    return takeAway(object);
}

void forgetEnd(const void* object) {
    auto& tables = Tables::shared();
    const std::scoped_lock lock(tables.mutex);
    tables.ending.erase(object);
}

void releaseAssociations(id owner) {
    auto& tables = Tables::shared();
    std::map<const void*, id> released;
    {
        const std::scoped_lock lock(tables.mutex);
        if (auto found = tables.associations.extract(owner); !found.empty())
            released = std::move(found.mapped());
    }
    for (const auto& [key, value] : released)
        objc_release(value);
}
}

// That one is a macro there.
objc_class* object_getClass(id object) {
    return object != nullptr ? *reinterpret_cast<objc_class**>(object) : nullptr;
}

id objc_retain(id object) {
    return call(object, "retain");
}

void objc_release(id object) {
    call(object, "release");
}

id objc_autorelease(id object) {
    return call(object, "autorelease");
}

void* objc_autoreleasePoolPush() {
    return call(call(classObject(objc_getClass("NSAutoreleasePool")), "alloc"), "init");
}

void objc_autoreleasePoolPop(void* pool) {
    call(static_cast<id>(pool), "release");
}

id objc_initWeakOrNil(id* slot, id object) {
    auto& tables = Tables::shared();
    const std::scoped_lock lock(tables.mutex);
    *slot = tables.ending.contains(object) ? nullptr : object;
    if (*slot != nullptr)
        tables.weakSlots[object].insert(slot);
    return *slot;
}

id objc_loadWeakRetained(id* slot) {
    const std::scoped_lock lock(Tables::shared().mutex);
    return objc_retain(*slot);
}

void objc_copyWeak(id* to, id* from) {
    const std::scoped_lock lock(Tables::shared().mutex);
    objc_initWeakOrNil(to, *from);
}

void objc_moveWeak(id* to, id* from) {
    const std::scoped_lock lock(Tables::shared().mutex);
    objc_initWeakOrNil(to, *from);
    objc_destroyWeak(from);
    *from = nullptr;
}

void objc_destroyWeak(id* slot) {
    auto& tables = Tables::shared();
    const std::scoped_lock lock(tables.mutex);
    const auto found = tables.weakSlots.find(*slot);
    if (found == tables.weakSlots.end())
        return;
    found->second.erase(slot);
    if (found->second.empty())
        tables.weakSlots.erase(found);
}

id objc_getAssociatedObject(id owner, const void* key) {
    auto& tables = Tables::shared();
    const std::scoped_lock lock(tables.mutex);
    const auto owned = tables.associations.find(owner);
    if (owned == tables.associations.end())
        return nullptr;
    const auto found = owned->second.find(key);
    return found != owned->second.end() ? found->second : nullptr;
}

void objc_setAssociatedObject(id owner, const void* key, id value, std::uintptr_t policy) {
    constexpr std::uintptr_t copies = 3;
    const id added = call(value, (policy & copies) == copies ? "copy" : "retain");
    id replaced = nullptr;
    {
        auto& tables = Tables::shared();
        const std::scoped_lock lock(tables.mutex);
        replaced = std::exchange(tables.associations[owner][key], added);
    }
    objc_release(replaced);
}
