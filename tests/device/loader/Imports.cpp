#include "Imports.h"

#include "Failure.h"
#include "Import.h"
#include "Kernel.h"
#include "Texts.h"

namespace {

constexpr size_t heapSize = 1U << 16U;
constexpr size_t heapAlignment = 16;

alignas(heapAlignment) uint8_t heap[heapSize];
size_t heapUsed = 0;
uint64_t variables[64]; ///< stands for every variable of other libraries, and for their virtual tables
uint64_t stackGuard = 0x5A5A5A5A;

void* allocate(size_t size) {
    void* const block = heap + heapUsed;
    heapUsed += (size + heapAlignment - 1) / heapAlignment * heapAlignment;
    if (heapUsed > heapSize)
        fail("no memory is left");
    return block;
}

void doNothing() {}

void reportFailedCheck(const char* check) {
    Kernel::write("failed: ");
    Kernel::write(check);
    Kernel::write("\n");
}

[[noreturn]] void unexpectedCall() {
    fail("the bundle called what there is no code for");
}

const Import imports[] = {
    {"__Znwm", code(allocate)},
    {"__ZdlPvm", code(doNothing)},
    {"__ZNSt3__119__shared_weak_count14__release_weakEv", code(doNothing)},
    {"__ZNSt3__119__shared_weak_countD2Ev", code(doNothing)},
    {"_memcpy", code(memcpy)},
    {"_reportFailedCheck", code(reportFailedCheck)},
    {"___stack_chk_guard", &stackGuard},
    {"__ZTINSt3__119__shared_weak_countE", variables},
    {"__ZTVN10__cxxabiv117__class_type_infoE", variables},
    {"__ZTVN10__cxxabiv120__si_class_type_infoE", variables},
    {"__ZTVN10__cxxabiv121__vmi_class_type_infoE", variables},
    {"__objc_empty_cache", variables},
    {"_OBJC_CLASS_$_NSObject", variables + 8},
    {"_OBJC_METACLASS_$_NSObject", variables + 16},
};

} // namespace

uint64_t Imports::address(const char* symbol) {
    for (const auto& import : imports)
        if (areEqual(import.symbol, symbol))
            return reinterpret_cast<uint64_t>(import.address);
    return reinterpret_cast<uint64_t>(code(unexpectedCall));
}

void* memcpy(void* to, const void* from, size_t size) {
    for (size_t i = 0; i < size; ++i)
        static_cast<uint8_t*>(to)[i] = static_cast<const uint8_t*>(from)[i];
    return to;
}

void* memmove(void* to, const void* from, size_t size) {
    if (to <= from)
        return memcpy(to, from, size);
    for (size_t i = size; i-- > 0;)
        static_cast<uint8_t*>(to)[i] = static_cast<const uint8_t*>(from)[i];
    return to;
}

void* memset(void* to, int byte, size_t size) {
    for (size_t i = 0; i < size; ++i)
        static_cast<uint8_t*>(to)[i] = static_cast<uint8_t>(byte);
    return to;
}
