#include "Failure.h"

#include "Kernel.h"

void fail(const char* reason, const char* what) {
    constexpr auto unusable = 99;
    Kernel::write("loader: ");
    Kernel::write(reason);
    Kernel::write(what);
    Kernel::write("\n");
    Kernel::exit(unusable);
}
