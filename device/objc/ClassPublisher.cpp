#include "ClassPublisher.h"

#include "Foundation/NSLog.h"
#include "FrameworkClass.h"
#include "MethodEntry.h"
#include "ObjectiveC/ClassTable.h"

#include <string>

namespace {

void dealloc(id self, SEL selector) noexcept {
    auto* const inherited = class_getMethodImplementation(frameworkClassBehind(self), selector);
    {
        const AutoreleasePool pool;
        endInstance(self);
    }
    reinterpret_cast<void (*)(id, SEL)>(inherited)(self, selector);
}

/// A class that a record of this program's code states is there already, with the place for the C++ half.
bool isStatedInCode(objc_class* existing) {
    return class_getInstanceVariable(existing, instanceVariableName) != nullptr;
}

objc_class* makeClass(const char* name, objc_class* base) {
    auto* const made = objc_allocateClassPair(base, name, 0);
    if (made == nullptr)
        return nullptr;
    constexpr std::uint8_t alignmentOfPointers = 3; // as a power of two
    if (class_getInstanceVariable(base, instanceVariableName) == nullptr)
        class_addIvar(made, instanceVariableName, sizeof(NSObject*), alignmentOfPointers, "^v");
    objc_registerClassPair(made);
    return made;
}

// What is there already stays, so what a class may override goes before its own selectors: the former's types
// are the exact ones.

void addOverridables(objc_class* to, const Class* inherited) {
    for (; inherited != nullptr; inherited = inherited->superclass()) {
        const auto* const framework = FrameworkClass::named(inherited->name());
        if (framework == nullptr)
            continue;
        for (const auto& overridable : framework->overridables())
            class_addMethod(to, overridable.message->selector(), overridable.implementation,
                            overridable.message->types().c_str());
    }
}

void addOwnMethods(objc_class* to, const Class& stated) {
    for (const auto& method : stated.methods()) {
        const std::string selector(method.selector);
        auto* const entry = methodEntry(method);
        if (entry == nullptr)
            NSLog("-[%@ %@] has more parameters than can be published.", stated.name(), selector);
        else
            class_addMethod(to, sel_registerName(selector.c_str()), entry, encodingOfMethod(method).c_str());
    }
}

/// The class that stands for a stated one; null when that is neither the frameworks' nor can be published.
objc_class* publish(const Class& stated) {
    const auto* const name = stated.name().c_str();
    auto* existing = objc_getClass(name);
    if (FrameworkClass::named(stated.name()) != nullptr)
        return existing;
    if (existing != nullptr && !isStatedInCode(existing))
        return existing;
    const auto* const superclass = stated.superclass();
    auto* const base = superclass != nullptr ? publish(*superclass) : nullptr;
    if (base == nullptr)
        return nullptr;
    if (existing == nullptr)
        existing = makeClass(name, base);
    if (existing == nullptr)
        return nullptr;
    class_addMethod(existing, sel_registerName("dealloc"), reinterpret_cast<IMP>(&dealloc), "v@:");
    addOverridables(existing, superclass);
    addOwnMethods(existing, stated);
    markPublished(existing);
    return existing;
}

} // namespace

void publishClasses() {
    const AutoreleasePool pool;
    for (const auto* const stated : ClassTable::shared().all()) {
        if (publish(*stated) == nullptr)
            NSLog("Class %@ cannot be published: it, or one that it derives from, is missing.",
                  stated->name());
    }
}
