// What the bundle imports of the C++ library, besides locks and strings.

#include "CodePointers.h"
#include "Failure.h"
#include "ImportLists.h"
#include "TypeRecords.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>

// NOLINTBEGIN(*-reserved-identifier): the C++ library's, which has no header for them
extern "C" int __cxa_guard_acquire(std::uint64_t* guard);
extern "C" void __cxa_guard_release(std::uint64_t* guard);

// NOLINTEND(*-reserved-identifier)

namespace {

void* allocate(std::size_t size) {
    return ::operator new(size);
}

void release(void* memory, std::size_t size) {
    ::operator delete(memory, size);
}

/// The count that shared pointers begin with.
struct SharedCount {
    std::uint64_t table;
    long owners;
    long watchers;
};

/// Ends the count itself once nobody owns or watches it, with its virtual function for that.
void releaseWatcher(SharedCount* count) {
    constexpr std::uint16_t diversityOfTable = 25423;    // the compiler's, of the names of the class
    constexpr std::uint16_t diversityOfFunction = 40928; // and of the function
    constexpr std::size_t place = 4;
    if (__atomic_load_n(&count->watchers, __ATOMIC_ACQUIRE) != 0 &&
        __atomic_fetch_add(&count->watchers, -1, __ATOMIC_ACQ_REL) != 0)
        return;
    const auto* const table = reinterpret_cast<const std::uint64_t*>(CodePointers::authenticatedAt(
        count->table, SigningKey::DA, diversityOfTable, "the virtual table of a shared count"));
    const auto function = CodePointers::authenticatedAt(table[place], SigningKey::IA, diversityOfFunction,
                                                        "the end of a shared count");
    reinterpret_cast<void (*)(SharedCount*)>(function)(count);
}

/// A base's destructor answers the object on the device.
void* endOfSharedCount(void* count) {
    return count;
}

const void* deleterOfSharedCount(const SharedCount* /*count*/, const TypeRecord* /*type*/) {
    return nullptr;
}

[[noreturn]] void pureVirtual() {
    fail("the bundle's code has called a pure virtual function");
}

const TypeRecord sharedCountType{
    .table = 0, .name = reinterpret_cast<std::uint64_t>("NSt3__119__shared_weak_countE"), .base = nullptr};

} // namespace

Imports cxxLibraryImports() {
    static const std::array imports{
        Import{"__Znwm", code(allocate)},
        Import{"__ZdlPvm", code(release)},
        Import{"___cxa_guard_acquire", code(__cxa_guard_acquire)},
        Import{"___cxa_guard_release", code(__cxa_guard_release)},
        Import{"___cxa_pure_virtual", code(pureVirtual)},
        Import{"___dynamic_cast", code(castToRecorded)},
        Import{"__ZTVN10__cxxabiv117__class_type_infoE", &typeRecordTables.withoutBase},
        Import{"__ZTVN10__cxxabiv120__si_class_type_infoE", &typeRecordTables.withBase},
        Import{"__ZTINSt3__119__shared_weak_countE", &sharedCountType},
        Import{"__ZNSt3__119__shared_weak_countD2Ev", code(endOfSharedCount)},
        Import{"__ZNSt3__119__shared_weak_count14__release_weakEv", code(releaseWatcher)},
        Import{"__ZNKSt3__119__shared_weak_count13__get_deleterERKSt9type_info", code(deleterOfSharedCount)}};
    return imports;
}
