// PROGRAM BUNDLE ARCHITECTURE [FAULTS...]: the tests of the pane over a bundle as it is installed.

#include "BundleUnderTest.h"
#include "Crash.h"
#include "Framework.h"
#include "StateOfEachTest.h"

#include <gtest/gtest.h>

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    tellCrashes();
    {
        const AutoreleasePool pool;
        BundleUnderTest::load(BundleUnderTest::readArguments(count, arguments));
        objc_release(
            newByName("cxRootListController")); // the first message, with which all classes are there
    }
    testing::UnitTest::GetInstance()->listeners().Append(new StateOfEachTest);
    return RUN_ALL_TESTS();
}
