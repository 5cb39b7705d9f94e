// What the program that loads the bundle finds in it.

#include "RegisteredTest.h"

// The tests are named to it by what stands for them here.
extern "C" {
[[gnu::visibility("default")]] const void* nextTest(const void* test);
[[gnu::visibility("default")]] const char* suiteOfTest(const void* test);
[[gnu::visibility("default")]] const char* nameOfTest(const void* test);
[[gnu::visibility("default")]] void runTest(const void* test);
}

const void* nextTest(const void* test) {
    return test == nullptr ? RegisteredTest::first() : static_cast<const RegisteredTest*>(test)->next();
}

const char* suiteOfTest(const void* test) {
    return static_cast<const RegisteredTest*>(test)->suite();
}

const char* nameOfTest(const void* test) {
    return static_cast<const RegisteredTest*>(test)->name();
}

void runTest(const void* test) {
    static_cast<const RegisteredTest*>(test)->run();
}
