#include "ClassPublisher.h"
#include "CodeUnderTest.h"
#include "StateOfEachTest.h"
#include "SystemStandIns.h"

#include <gtest/gtest.h>

std::string folderOfCode() {
    const std::string services = servicesLibrary(); // which is built beside the programs
    return services.substr(0, services.rfind('/'));
}

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
