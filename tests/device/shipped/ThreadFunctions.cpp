// The C++ library's threads, in the objects that the bundle's code has for the device's.

#include "ThreadFunctions.h"

#include "CodePointers.h"

#include <pthread.h>
#include <sched.h>

#include <array>
#include <cstdint>
#include <exception>
#include <memory>
#include <new>

namespace {

/// What a thread is started with. The function is the bundle's.
struct Start {
    void* (*run)(void* argument);
    void* argument;
};

/// The key under which a thread keeps what the library knows of it: in the device's size.
struct KeyOfThreads {
    KeyOfThreads() {
        pthread_key_t made = 0;
        pthread_key_create(&made, [](void* state) { ::operator delete(state); });
        key = made;
    }

    std::uint64_t key;
};

void* runThread(void* start) {
    const std::unique_ptr<Start> given(static_cast<Start*>(start));
    return given->run(given->argument);
}

int startThread(pthread_t* thread, const void* /*attributes*/, void* (*run)(void*), void* argument) {
    auto start = std::make_unique<Start>(CodePointers::authenticated(run, "what a thread runs"), argument);
    const int error = pthread_create(thread, nullptr, runThread, start.get());
    if (error == 0)
        static_cast<void>(start.release());
    return error;
}

void joinThread(pthread_t* thread) {
    pthread_join(*thread, nullptr);
    *thread = 0;
}

void endThread(const pthread_t* thread) {
    if (*thread != 0)
        std::terminate();
}

void* makeThreadState(void* state) {
    return state;
}

void endThreadState(void* /*state*/) {}

const KeyOfThreads* keyOfThreads() {
    static const KeyOfThreads key;
    return &key;
}

int setThreadState(std::uint64_t key, const void* state) {
    return pthread_setspecific(static_cast<pthread_key_t>(key), state);
}

[[noreturn]] void failToStart() {
    std::terminate();
}

} // namespace

Imports threadFunctions() {
    static const std::array imports{Import{"__ZNSt3__115__thread_structC1Ev", code(makeThreadState)},
                                    Import{"__ZNSt3__115__thread_structD1Ev", code(endThreadState)},
                                    Import{"__ZNSt3__119__thread_local_dataEv", code(keyOfThreads)},
                                    Import{"__ZNSt3__120__throw_system_errorEiPKc", code(failToStart)},
                                    Import{"__ZNSt3__16thread4joinEv", code(joinThread)},
                                    Import{"__ZNSt3__16threadD1Ev", code(endThread)},
                                    Import{"_pthread_create", code(startThread)},
                                    Import{"_pthread_setspecific", code(setThreadState)},
                                    Import{"_sched_yield", code(sched_yield)}};
    return imports;
}
