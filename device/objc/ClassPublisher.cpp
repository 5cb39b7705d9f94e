#include "ClassPublisher.h"

#include "Foundation/NSLog.h"
#include "FrameworkClass.h"
#include "Instances.h"
#include "MethodEntry.h"
#include "ObjectiveC/ClassTable.h"
#include "PublishedClasses.h"

#include <string>

namespace {

/// The class that a record of this program's code states; null when there is none.
constinit objc_class* principalClass = nullptr;

void dealloc(id self, SEL selector) noexcept {
    auto* const inherited = inheritedImplementation(self, selector);
    {
        const AutoreleasePool pool;
        endInstance(self);
    }
    reinterpret_cast<void (*)(id, SEL)>(inherited)(self, selector);
}

objc_class* makeClass(const std::string& name, objc_class* base) {
    auto* const made = newClass(name, base);
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
                            overridable.message->types());
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
    if (FrameworkClass::named(stated.name()) != nullptr)
        return runtimeClass(stated);
    const auto* const superclass = stated.superclass();
    auto* const base = superclass != nullptr ? publish(*superclass) : nullptr;
    if (base == nullptr)
        return nullptr;
    auto* published = runtimeClass(stated);
    if (published == nullptr)
        published = makeClass(stated.name(), base);
    if (published == nullptr)
        return nullptr;
    class_addMethod(published, sel_registerName("dealloc"), reinterpret_cast<IMP>(&dealloc), "v@:");
    addOverridables(published, superclass);
    addOwnMethods(published, stated);
    markPublished(stated, published);
    return published;
}

/// The `+initialize` of the principal class, and of those that inherit it.
void initialize(id self, SEL selector) noexcept {
    if (const auto* const stated = NSClassFromString(class_getName(principalClass)))
        markPublished(*stated, principalClass);
    publishClasses();
    auto* const inheritedFrom = object_getClass(classObject(class_getSuperclass(principalClass)));
    auto* const inherited = class_getMethodImplementation(inheritedFrom, selector);
    reinterpret_cast<void (*)(id, SEL)>(inherited)(self, selector);
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

void publishWithFirstMessageTo(objc_class* principal) {
    principalClass = principal;
    class_addMethod(object_getClass(classObject(principal)), sel_registerName("initialize"),
                    reinterpret_cast<IMP>(&initialize), "v@:");
}
