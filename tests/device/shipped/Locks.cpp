// The C++ library's locks, in the memory that the bundle's code has for the device's. Those are larger than
// the ones here. What their constructors answer is the lock, as on the device.

#include "ImportLists.h"

#include <pthread.h>

#include <array>

namespace {

constexpr std::size_t sizeOfMutex = 64;
constexpr std::size_t sizeOfSharedMutex = 168;

/// A lock that is made without a constructor's call begins with a mark of eight bytes; the rest are zeros, of
/// which the one here is made too.
constexpr std::size_t mark = 8;
static_assert(sizeof(pthread_mutex_t) + mark <= sizeOfMutex && sizeof(pthread_rwlock_t) <= sizeOfSharedMutex);

pthread_mutex_t* inside(char* memory) {
    return reinterpret_cast<pthread_mutex_t*>(memory + mark);
}

void lock(char* memory) {
    pthread_mutex_lock(inside(memory));
}

void unlock(char* memory) {
    pthread_mutex_unlock(inside(memory));
}

char* makeRecursive(char* memory) {
    pthread_mutexattr_t kind;
    pthread_mutexattr_init(&kind);
    pthread_mutexattr_settype(&kind, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(inside(memory), &kind);
    pthread_mutexattr_destroy(&kind);
    return memory;
}

pthread_rwlock_t* makeShared(pthread_rwlock_t* memory) {
    pthread_rwlock_init(memory, nullptr);
    return memory;
}

void lockAlone(pthread_rwlock_t* memory) {
    pthread_rwlock_wrlock(memory);
}

void lockShared(pthread_rwlock_t* memory) {
    pthread_rwlock_rdlock(memory);
}

void unlockShared(pthread_rwlock_t* memory) {
    pthread_rwlock_unlock(memory);
}

} // namespace

Imports lockImports() {
    static const std::array imports{
        Import{"__ZNSt3__15mutex4lockEv", code(lock)},
        Import{"__ZNSt3__15mutex6unlockEv", code(unlock)},
        Import{"__ZNSt3__115recursive_mutexC1Ev", code(makeRecursive)},
        Import{"__ZNSt3__115recursive_mutex4lockEv", code(lock)},
        Import{"__ZNSt3__115recursive_mutex6unlockEv", code(unlock)},
        Import{"__ZNSt3__119__shared_mutex_baseC1Ev", code(makeShared)},
        Import{"__ZNSt3__119__shared_mutex_base4lockEv", code(lockAlone)},
        Import{"__ZNSt3__119__shared_mutex_base6unlockEv", code(unlockShared)},
        Import{"__ZNSt3__119__shared_mutex_base11lock_sharedEv", code(lockShared)},
        Import{"__ZNSt3__119__shared_mutex_base13unlock_sharedEv", code(unlockShared)}};
    return imports;
}
