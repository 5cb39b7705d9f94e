// PROGRAM BUNDLE ARCHITECTURE: loads a bundle as it is installed where other code has come first to the name
// of the class that the bundle is opened by.

#include "BundleUnderTest.h"
#include "Crash.h"
#include "Framework.h"
#include "Journal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(TakenPageTest, IsLoggedAndLeavesTheirClassAsItIs) {
    EXPECT_EQ(
        takeJournal(),
        std::vector<std::string>{
            "log: The class name cxRootListController is taken by other code: the pane cannot be opened."});
    auto* const theirs = newByName("cxRootListController");
    EXPECT_STREQ(class_getName(class_getSuperclass(object_getClass(theirs))), "NSObject");
    EXPECT_FALSE(answersTo(theirs, "setupNavigationSwitch"));
    objc_release(theirs);
}

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    tellCrashes();
    {
        const AutoreleasePool pool;
        BundleUnderTest::load(BundleUnderTest::readArguments(count, arguments));
    }
    return RUN_ALL_TESTS();
}
