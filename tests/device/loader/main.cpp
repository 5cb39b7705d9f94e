// loader IMAGE [KEY]: loads an arm64e bundle as the device's loader does, with pointers that the processor
// signs, and runs its `runChecks`. The exit status is the number of checks that failed. With the number of a
// key (0 to 3, for IA, IB, DA and DB), every pointer for that key is signed otherwise than the bundle asks
// for.
//
// A program for Linux on AArch64 without a C library: an emulated processor runs nothing but what is tested.

#include "Image.h"
#include "Imports.h"
#include "Kernel.h"

namespace {

/// What the kernel puts on the stack.
struct Start {
    uint64_t argumentCount;
    const char* arguments[3];
};

int run(const Start& start) {
    if (start.argumentCount < 2)
        fail("which bundle?");
    const auto disturbedKey =
        start.argumentCount < 3 ? Image::noKey : static_cast<unsigned>(start.arguments[2][0] - '0');
    const Image image(start.arguments[1], disturbedKey);
    image.runInitialisers();
    return image.function("_runChecks")();
}

} // namespace

extern "C" [[noreturn, gnu::used]] void startWith(const Start& start);

void startWith(const Start& start) {
    Kernel::exit(run(start));
}

__asm(".globl _start\n_start: mov x0, sp\n bl startWith\n");
