// A libroot whose answers cannot be mistaken for the fallbacks'. Built whole, and without some of its
// symbols.

#include <cstdio>
#include <cstdlib>
#include <cstring>

#define EXPORTED extern "C" __attribute__((visibility("default")))

#ifdef CALLS_WHAT_NOBODY_HAS
// NOLINTNEXTLINE(*-identifier-naming): beside libroot's own
extern "C" int libroot_function_that_nobody_has();

EXPORTED int libroot_caller_of_it() {
    return libroot_function_that_nobody_has();
}
#endif

#ifndef WITHOUT_libroot_get_root_prefix
EXPORTED const char* libroot_get_root_prefix() {
    return "/system";
}
#endif

#ifndef WITHOUT_libroot_get_jbroot_prefix
EXPORTED const char* libroot_get_jbroot_prefix() {
    return "/jail";
}
#endif

#ifndef WITHOUT_libroot_get_boot_uuid
EXPORTED const char* libroot_get_boot_uuid() {
    return "12345678-0000-0000-0000-00000000000B";
}
#endif

#ifndef WITHOUT_libroot_jbrootpath
// Answers in a block of its own when it is given "own", and with what its callers must cope with.
EXPORTED char* libroot_jbrootpath(const char* path, char* buffer) {
    if (path == nullptr || std::strcmp(path, "/null") == 0)
        return nullptr;
    static char ownBlock[] = "/answered/elsewhere";
    if (std::strcmp(path, "/own") == 0)
        return ownBlock;
    const bool invalid = std::strcmp(path, "/invalid") == 0;
    std::snprintf(buffer, 1024, "/from-libroot%s", invalid ? "\xff" : path);
    return buffer;
}
#endif

#ifndef WITHOUT_libroot_rootfspath
EXPORTED char* libroot_rootfspath(const char* path, char* buffer) {
    if (path == nullptr)
        return nullptr;
    std::snprintf(buffer, 1024, "/to-libroot%s", path);
    return buffer;
}
#endif
