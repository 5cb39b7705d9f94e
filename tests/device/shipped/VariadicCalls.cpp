#include "VariadicCalls.h"

#include "Runtime.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

extern "C" {
void logWithArguments(id format, va_list arguments);
void logWithStack(id format, void* stack);
[[gnu::format(printf, 3, 0)]] int printWithStack(char* to, std::size_t size, const char* format, void* stack);
}

__asm(R"(
    .text
    .globl logFromBundle
    .type logFromBundle, %function
logFromBundle:
    mov x1, sp
    b logWithStack
    .globl printFromBundle
    .type printFromBundle, %function
printFromBundle:
    mov x3, sp
    b printWithStack
)");

namespace {

/// A `va_list` of AArch64, in which no registers are left.
struct ArgumentList {
    void* stack;
    void* generalEnd;
    void* vectorEnd;
    int generalOffset;
    int vectorOffset;
};

static_assert(sizeof(ArgumentList) == sizeof(va_list));

void readFrom(void* stack, va_list& arguments) {
    const ArgumentList list{
        .stack = stack, .generalEnd = nullptr, .vectorEnd = nullptr, .generalOffset = 0, .vectorOffset = 0};
    std::memcpy(&arguments, &list, sizeof list);
}

} // namespace

void logWithStack(id format, void* stack) {
    va_list arguments;
    readFrom(stack, arguments);
    logWithArguments(format, arguments);
}

int printWithStack(char* to, std::size_t size, const char* format, void* stack) {
    va_list arguments;
    readFrom(stack, arguments);
    return std::vsnprintf(to, size, format, arguments);
}
