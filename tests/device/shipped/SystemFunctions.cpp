// What the bundle imports of the system, and passes pointers to code through: the tests' stand-ins know no
// signatures.

#include "BundleUnderTest.h"
#include "CodePointers.h"
#include "ImportLists.h"
#include "Runtime.h"
#include "SystemStandIns.h"
#include "VariadicCalls.h"

#include <dlfcn.h>

#include <array>
#include <cstdint>

namespace {

using Work = void(void* context);

void runLater(DispatchQueue* queue, void* context, Work* work) {
    dispatch_async_f(queue, context, CodePointers::authenticated(work, "work for a queue"));
}

void runAfter(std::uint64_t when, DispatchQueue* queue, void* context, Work* work) {
    dispatch_after_f(when, queue, context, CodePointers::authenticated(work, "work for a queue"));
}

void* openLibrary(const char* path, int mode) {
    return dlopen(path, mode);
}

int closeLibrary(void* library) {
    return dlclose(library);
}

/// Whoever looks for a function is given it signed. The tests look for functions alone.
void* symbolOf(void* library, const char* name) {
    auto* const found = dlsym(library, name);
    return BundleUnderTest::leavesSymbolsUnsigned()
               ? found
               : reinterpret_cast<void*>(CodePointers::signedFunction(reinterpret_cast<IMP>(found)));
}

int findImage(const void* address, Dl_info* found) {
    const auto* const place =
        reinterpret_cast<const void*>(CodePointers::stripped(reinterpret_cast<std::uint64_t>(address)));
    const auto* const image = BundleUnderTest::image();
    if (image == nullptr || !image->contains(place))
        return dladdr(place, found);
    *found = {.dli_fname = BundleUnderTest::path(),
              .dli_fbase = image->memory(),
              .dli_sname = nullptr,
              .dli_saddr = nullptr};
    return 1;
}

} // namespace

Imports systemImports() {
    static const std::array imports{
        Import{"_AudioServicesPlaySystemSound", code(AudioServicesPlaySystemSound)},
        Import{"_CFNotificationCenterGetDarwinNotifyCenter", code(CFNotificationCenterGetDarwinNotifyCenter)},
        Import{"_CFNotificationCenterPostNotification", code(CFNotificationCenterPostNotification)},
        Import{"_NSLog", code(logFromBundle)},
        Import{"__dispatch_main_q", &_dispatch_main_q},
        Import{"_dispatch_after_f", code(runAfter)},
        Import{"_dispatch_async_f", code(runLater)},
        Import{"_dispatch_time", code(dispatch_time)},
        Import{"_dladdr", code(findImage)},
        Import{"_dlclose", code(closeLibrary)},
        Import{"_dlopen", code(openLibrary)},
        Import{"_dlsym", code(symbolOf)}};
    return imports;
}
