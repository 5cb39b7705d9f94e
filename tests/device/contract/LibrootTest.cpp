// How libroot is looked for. A process has one resolver, so this is a program of its own.

#include "Journal.h"
#include "RootPrefixResolver.h"

#include <gtest/gtest.h>

TEST(LibrootTest, IsOpenedOnceAndBoundAtOnceByWhateverIsAskedFirst) {
    EXPECT_TRUE(takeJournal().empty());
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("/a"), "/var/jb/a");
    EXPECT_EQ(takeJournal(), std::vector<std::string>{"dlopen @rpath/libroot.dylib 2"});
    EXPECT_STREQ(RootPrefixResolver::libroot_get_jbroot_prefix(), "/var/jb");
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("/b"), "/var/jb/b");
    EXPECT_TRUE(takeJournal().empty());
}
