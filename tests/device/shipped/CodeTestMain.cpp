// PROGRAM BUNDLE ARCHITECTURE: runs a bundle of tests that are code of the device. GoogleTest knows each of
// them as a test of its own.

#include "BundleUnderTest.h"
#include "Crash.h"
#include "Framework.h"
#include "ImportTable.h"
#include "StateOfEachTest.h"
#include "TestFunctions.h"
#include "ThreadFunctions.h"

#include <gtest/gtest.h>

namespace {

/// A function that the bundle exports.
template <class Function>
Function* exported(const char* symbol) {
    return reinterpret_cast<Function*>(BundleUnderTest::image()->exported(symbol));
}

/// A test that the bundle runs.
class CodeTest final : public testing::Test {
public:
    explicit CodeTest(const void* test) : test_(test) {}

private:
    void TestBody() override { exported<void(const void*)>("_runTest")(test_); }

    const void* const test_;
};

void registerTests() {
    auto* const next = exported<const void*(const void*)>("_nextTest");
    auto* const suite = exported<const char*(const void*)>("_suiteOfTest");
    auto* const name = exported<const char*(const void*)>("_nameOfTest");
    for (const auto* test = next(nullptr); test != nullptr; test = next(test))
        testing::RegisterTest(suite(test), name(test), nullptr, nullptr, __FILE__, __LINE__,
                              [test]() -> testing::Test* { return new CodeTest(test); });
}

} // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    tellCrashes();
    for (const auto imports : {testFunctions(), threadFunctions()}) {
        for (const auto& [symbol, address] : imports)
            ImportTable::add(symbol, address);
    }
    {
        const AutoreleasePool pool;
        BundleUnderTest::load(BundleUnderTest::readArguments(count, arguments));
        objc_release(
            newByName("cxRootListController")); // the first message, with which all classes are there
    }
    registerTests();
    testing::UnitTest::GetInstance()->listeners().Append(new StateOfEachTest);
    return RUN_ALL_TESTS();
}
