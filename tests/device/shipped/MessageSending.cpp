#include "MessageSending.h"

#include "RecordedClasses.h"
#include "Runtime.h"

namespace {

/// In two registers.
struct Found {
    id receiver;
    IMP function;
};

} // namespace

extern "C" Found findMessage(id receiver, SEL selector);

Found findMessage(id receiver, SEL selector) {
    auto* const known = RecordedClasses::toRuntime(receiver);
    return {.receiver = known, .function = messageFunction(known, selector)};
}

// All registers that arguments come in are kept while the message is looked up. Null is answered with zeros.
__asm(R"(
    .text
    .globl sendMessage
    .type sendMessage, %function
sendMessage:
    cbz x0, 1f
    stp x29, x30, [sp, #-16]!
    mov x29, sp
    sub sp, sp, #208
    stp x0, x1, [sp]
    stp x2, x3, [sp, #16]
    stp x4, x5, [sp, #32]
    stp x6, x7, [sp, #48]
    str x8, [sp, #64]
    stp q0, q1, [sp, #80]
    stp q2, q3, [sp, #112]
    stp q4, q5, [sp, #144]
    stp q6, q7, [sp, #176]
    bl findMessage
    mov x16, x1
    ldr x1, [sp, #8]
    ldp x2, x3, [sp, #16]
    ldp x4, x5, [sp, #32]
    ldp x6, x7, [sp, #48]
    ldr x8, [sp, #64]
    ldp q0, q1, [sp, #80]
    ldp q2, q3, [sp, #112]
    ldp q4, q5, [sp, #144]
    ldp q6, q7, [sp, #176]
    mov sp, x29
    ldp x29, x30, [sp], #16
    br x16
1:  mov x1, #0
    movi d0, #0
    movi d1, #0
    movi d2, #0
    movi d3, #0
    ret
)");
