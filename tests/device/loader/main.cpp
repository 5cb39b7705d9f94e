// loader BUNDLE ARCHITECTURE [KEY]: loads a bundle as the device's loader does, for arm64e with pointers that
// the processor signs, and runs its `runChecks`. The exit status is the number of checks that failed. With
// the number of a key (0 to 3, for IA, IB, DA and DB), every pointer for that key is signed otherwise than
// the bundle asks for.
//
// A program for Linux on AArch64 without a C library: an emulated processor runs nothing but what is tested.

#include "Failure.h"
#include "Image.h"
#include "Imports.h"
#include "Kernel.h"
#include "Texts.h"

namespace {

/// What the kernel puts on the stack.
struct Start {
    uint64_t argumentCount;
    const char* arguments[4];
};

int run(const Start& start) {
    if (start.argumentCount < 3)
        fail("which bundle, and which architecture of it?");
    Image::Disturbance disturbance;
    if (start.argumentCount > 3)
        disturbance.key = static_cast<unsigned>(start.arguments[3][0] - '0');
    const auto architecture =
        areEqual(start.arguments[2], "arm64e") ? Architecture::Arm64e : Architecture::Arm64;
    const Image image(start.arguments[1], architecture, Imports::address, disturbance);
    image.runInitialisers();
    return reinterpret_cast<int (*)()>(image.exported("_runChecks"))();
}

} // namespace

extern "C" [[noreturn, gnu::used]] void startWith(const Start& start);

void startWith(const Start& start) {
    Kernel::exit(run(start));
}

__asm(".globl _start\n_start: mov x0, sp\n bl startWith\n");
