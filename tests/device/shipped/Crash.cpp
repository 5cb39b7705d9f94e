#include "Crash.h"

#include "BundleUnderTest.h"

#include <ucontext.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

namespace {

/// A place in the bundle, as its file has it; others as they are.
unsigned long long placeInBundle(unsigned long long address) {
    const auto* const image = BundleUnderTest::image();
    if (image == nullptr || !image->contains(reinterpret_cast<const void*>(address)))
        return address;
    return address - reinterpret_cast<unsigned long long>(image->memory());
}

extern "C" void tellCrash(int signal, siginfo_t* /*information*/, void* context) {
    const auto& registers = static_cast<const ucontext_t*>(context)->uc_mcontext;
    std::fprintf(stderr, "crashed: signal %d at %llx of the bundle, called from %llx\n", signal,
                 placeInBundle(registers.pc), placeInBundle(registers.regs[30]));
    constexpr int crashed = 98;
    _exit(crashed);
}

} // namespace

void tellCrashes() {
    struct sigaction action = {};
    action.sa_sigaction = tellCrash;
    action.sa_flags = SA_SIGINFO;
    for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGTRAP})
        sigaction(signal, &action, nullptr);
}
