#include "ListControllerEntries.h"

#include "Foundation/NSString.h"
#include "Preferences/PSListController.h"

#include <dlfcn.h>

namespace {

using SpecifiersEntry = OverrideEntry<"-[PSListController specifiers]", &PSListController::specifiers>;

id specifiers(id self, SEL selector) noexcept {
    const id answer = SpecifiersEntry::call(self, selector);
    const auto* const kept = cachedSpecifiersOf(self);
    const bool areKept =
        kept != nullptr && *kept != nullptr && send<"-[NSArray isEqualToArray:]", bool>(*kept, answer);
    return areKept ? *kept : answer;
}

id bundle(id /*self*/, SEL /*selector*/) noexcept {
    return withinPool<id>([] {
        Dl_info image{};
        dladdr(reinterpret_cast<const void*>(&bundleOverridable), &image);
        return sendToClass<"+[NSBundle bundleWithPath:]", id>(
            stringByDeletingLastPathComponent(image.dli_fname != nullptr ? image.dli_fname : ""));
    });
}

} // namespace

Overridable specifiersOverridable() {
    return {&SpecifiersEntry::Sent::record, reinterpret_cast<IMP>(&specifiers)};
}

Overridable bundleOverridable() {
    return {&Message<"-[PSListController bundle]", id>::record, reinterpret_cast<IMP>(&bundle)};
}
