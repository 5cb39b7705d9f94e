#include "Kernel.h"

namespace {

constexpr long openCall = 56;
constexpr long writeCall = 64;
constexpr long exitCall = 94;
constexpr long mapCall = 222;
constexpr long protectCall = 226;
constexpr long currentFolder = -100;
constexpr long errorOutput = 2;
constexpr long readable = 1;
constexpr long readableAndWritable = 3;
constexpr long privately = 2;
constexpr long privatelyWithoutFile = 0x22;
constexpr long lowestError = -4095;

long call(long number, long a, long b = 0, long c = 0, long d = 0, long e = 0, long f = 0) {
    register const long x8 __asm("x8") = number;
    register long x0 __asm("x0") = a; // NOLINT(misc-const-correctness): the answer comes here
    register const long x1 __asm("x1") = b;
    register const long x2 __asm("x2") = c;
    register const long x3 __asm("x3") = d;
    register const long x4 __asm("x4") = e;
    register const long x5 __asm("x5") = f;
    __asm volatile("svc 0" : "+r"(x0) : "r"(x8), "r"(x1), "r"(x2), "r"(x3), "r"(x4), "r"(x5) : "memory");
    return x0;
}

uint8_t* map(size_t size, long protection, long flags, long file) {
    const auto address = call(mapCall, 0, static_cast<long>(size), protection, flags, file);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel answers all calls with numbers
    return address >= lowestError && address < 0 ? nullptr : reinterpret_cast<uint8_t*>(address);
}

size_t lengthOf(const char* text) {
    size_t length = 0;
    while (text[length] != 0)
        ++length;
    return length;
}

} // namespace

void Kernel::exit(int status) {
    call(exitCall, status);
    __builtin_unreachable();
}

void Kernel::write(const char* text) {
    call(writeCall, errorOutput, reinterpret_cast<long>(text), static_cast<long>(lengthOf(text)));
}

const uint8_t* Kernel::mapFile(const char* path, size_t size) {
    const auto file = call(openCall, currentFolder, reinterpret_cast<long>(path));
    return file < 0 ? nullptr : map(size, readable, privately, file);
}

uint8_t* Kernel::allocate(size_t size) {
    return map(size, readableAndWritable, privatelyWithoutFile, -1);
}

bool Kernel::protect(uint8_t* memory, size_t size, uint32_t protection) {
    return call(protectCall, reinterpret_cast<long>(memory), static_cast<long>(size),
                static_cast<long>(protection)) == 0;
}
