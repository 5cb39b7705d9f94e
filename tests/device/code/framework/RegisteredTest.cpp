#include "RegisteredTest.h"

namespace {

const RegisteredTest*& latest() {
    static const RegisteredTest* test = nullptr;
    return test;
}

} // namespace

RegisteredTest::RegisteredTest(const char* suite, const char* name, Body* body)
    : suite_(suite),
      name_(name),
      body_(body),
      next_(latest()) {
    latest() = this;
}

const RegisteredTest* RegisteredTest::first() {
    return latest();
}
