#include "PublishedClasses.h"

#include "Foundation/NSLog.h"
#include "FrameworkClass.h"

#include <map>
#include <mutex>
#include <shared_mutex>

namespace {

/// Who is published as what. Nothing is ever taken out: a class of the runtime stays, and so does its name
/// in the class table, whatever code states it.
struct Published {
    static Published& shared() {
        static auto* const all = new Published;
        return *all;
    }

    [[nodiscard]] bool contains(objc_class* candidate) const { return names.contains(candidate); }

    /// The nearest published class, beginning with the one itself.
    [[nodiscard]] objc_class* nearestTo(objc_class* candidate) const {
        while (candidate != nullptr && !contains(candidate))
            candidate = class_getSuperclass(candidate);
        return candidate;
    }

    std::shared_mutex mutex;
    std::map<std::string, objc_class*, std::less<>> classes; ///< by the name in the class table
    std::map<objc_class*, std::string> names;
};

/// The nearest class of the object that the frameworks define, when its own is published by us; null when its
/// own class is the frameworks' already.
objc_class* frameworkClassBehind(id object) {
    auto& all = Published::shared();
    const std::shared_lock lock(all.mutex);
    auto* candidate = all.nearestTo(object_getClass(object));
    while (candidate != nullptr && all.contains(candidate))
        candidate = class_getSuperclass(candidate);
    return candidate;
}

} // namespace

objc_class* newClass(const std::string& name, objc_class* base) {
    auto free = name;
    auto* made = objc_allocateClassPair(base, free.c_str(), 0);
    for (int number = 2; made == nullptr && objc_getClass(free.c_str()) != nullptr; ++number) {
        free = name + std::to_string(number);
        made = objc_allocateClassPair(base, free.c_str(), 0);
    }
    if (made != nullptr && free != name)
        NSLog("The class name %@ is taken by other code: it is %@ here.", name, free);
    return made;
}

void markPublished(const Class& stated, objc_class* published) {
    auto& all = Published::shared();
    const std::scoped_lock lock(all.mutex);
    all.classes.insert_or_assign(stated.name(), published);
    all.names.emplace(published, stated.name());
}

objc_class* runtimeClass(const Class& stated) {
    if (FrameworkClass::named(stated.name()) != nullptr)
        return objc_getClass(stated.name().c_str());
    auto& all = Published::shared();
    const std::shared_lock lock(all.mutex);
    const auto found = all.classes.find(stated.name());
    return found != all.classes.end() ? found->second : nullptr;
}

const Class* statedClass(objc_class* of) {
    {
        auto& all = Published::shared();
        const std::shared_lock lock(all.mutex);
        if (const auto found = all.names.find(of); found != all.names.end())
            return NSClassFromString(found->second);
    }
    const auto* const name = class_getName(of);
    return FrameworkClass::named(name) != nullptr ? NSClassFromString(name) : nullptr;
}

objc_class* publishedClassOf(id object) {
    auto& all = Published::shared();
    const std::shared_lock lock(all.mutex);
    return all.nearestTo(object_getClass(object));
}

IMP inheritedImplementation(id object, SEL selector) {
    auto* const base = frameworkClassBehind(object);
    return base != nullptr ? class_getMethodImplementation(base, selector)
                           : messageFunction(object, selector);
}
