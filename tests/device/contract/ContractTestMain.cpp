#include "ClassPublisher.h"
#include "Framework.h"
#include "Journal.h"
#include "Runtime.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// Each test has an autorelease pool, as whatever runs on a device's main thread has, and a journal of its
/// own. What it has begun and left to be done ends with it.
class StateOfEachTest final : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& /*test*/) override {
        pool_.emplace();
        takeJournal();
    }

    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        finishAnimations();
        runWaitingWork();
        pool_.reset();
    }

private:
    std::optional<AutoreleasePool> pool_;
};

} // namespace

// What the runtime and GNUstep allocate for themselves and never free.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer asks for these names
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libobjc\nleak:libgnustep-base\n";
}

extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}

// NOLINTEND(bugprone-reserved-identifier)

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    publishClasses();
    testing::UnitTest::GetInstance()->listeners().Append(new StateOfEachTest);
    return RUN_ALL_TESTS();
}
