// The functions that stand in for libroot's where that library is not.

#include "RootPrefixResolver.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>

namespace {

std::string rootFileSystemPath(const char* path) {
    std::array<char, 1024> buffer{};
    return RootPrefixResolver::libroot_rootfspath(path, buffer.data());
}

} // namespace

TEST(RootPrefixTest, ThePrefixesAreThoseOfTheRootlessLayout) {
    EXPECT_STREQ(RootPrefixResolver::libroot_get_root_prefix(), "");
    EXPECT_STREQ(RootPrefixResolver::libroot_get_jbroot_prefix(), "/var/jb");
    EXPECT_STREQ(RootPrefixResolver::libroot_get_boot_uuid(), "00000000-0000-0000-0000-000000000000");
}

TEST(RootPrefixTest, APathOfTheJailbreaksIsOneOfTheSystemsWithoutItsPrefix) {
    EXPECT_EQ(rootFileSystemPath("/var/jb/usr/lib"), "/usr/lib");
    EXPECT_EQ(rootFileSystemPath("/usr/lib"), "/usr/lib");
    EXPECT_EQ(rootFileSystemPath("usr/lib"), "usr/lib");
    EXPECT_EQ(RootPrefixResolver::libroot_rootfspath(nullptr, nullptr), nullptr);
}

TEST(RootPrefixTest, APathWithoutABufferIsTheCallers) {
    auto* const path = RootPrefixResolver::libroot_jbrootpath("/usr", nullptr);
    EXPECT_STREQ(path, "/var/jb/usr");
    std::free(path); // NOLINT(*-no-malloc): as whoever calls libroot does
}
