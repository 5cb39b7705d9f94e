// The resolver on a device without libroot. All tests of the process share the one resolver.

#include "RootPrefixResolver.h"

#include "TestDevice.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

constexpr std::size_t bufferSize = 1024;

class RootPrefixResolverTest : public testing::Test {
protected:
    std::string jailbreakPath(const std::string& path) {
        return RootPrefixResolver::libroot_jbrootpath(path.c_str(), buffer.data());
    }

    std::string rootFileSystemPath(const std::string& path) {
        return RootPrefixResolver::libroot_rootfspath(path.c_str(), buffer.data());
    }

    TestDevice device;
    std::array<char, bufferSize> buffer{};
};

using Block = std::unique_ptr<char, decltype(&std::free)>;

} // namespace

TEST_F(RootPrefixResolverTest, PrefixesAndBootAreTheRootlessOnes) {
    EXPECT_STREQ(RootPrefixResolver::libroot_get_root_prefix(), "");
    EXPECT_STREQ(RootPrefixResolver::libroot_get_jbroot_prefix(), "/var/jb");
    EXPECT_STREQ(RootPrefixResolver::libroot_get_boot_uuid(), "00000000-0000-0000-0000-000000000000");
}

TEST_F(RootPrefixResolverTest, AnAbsolutePathGetsTheJailbreaksPrefix) {
    EXPECT_EQ(jailbreakPath("/Library/PreferenceBundles/corvexPrefs.bundle/icon.png"),
              "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/icon.png");
    EXPECT_EQ(jailbreakPath("/"), "/var/jb/");
    EXPECT_EQ(jailbreakPath("/var/jb/a"), "/var/jb/var/jb/a");
}

TEST_F(RootPrefixResolverTest, ARelativePathStaysInBothDirections) {
    for (const std::string path : {"", "icon.png", "a/b", "./a", "../a", "var/jb/a"}) {
        EXPECT_EQ(jailbreakPath(path), path);
        EXPECT_EQ(rootFileSystemPath(path), path);
    }
}

TEST_F(RootPrefixResolverTest, ThePrefixIsTakenOffAPathThatBeginsWithIt) {
    EXPECT_EQ(rootFileSystemPath("/var/jb/etc"), "/etc");
    EXPECT_EQ(rootFileSystemPath("/var/jb"), "");
    EXPECT_EQ(rootFileSystemPath("/var/jb/"), "/");
}

TEST_F(RootPrefixResolverTest, APathOutsideThePrefixGetsTheEmptyRootPrefix) {
    EXPECT_EQ(rootFileSystemPath("/etc"), "/etc");
    EXPECT_EQ(rootFileSystemPath("/var/j"), "/var/j");
}

TEST_F(RootPrefixResolverTest, OnlyTheFirstBytesAreComparedWithThePrefix) {
    EXPECT_EQ(rootFileSystemPath("/var/jbx"), "x");
    EXPECT_EQ(rootFileSystemPath("/var/jbroot/etc"), "root/etc");
}

TEST_F(RootPrefixResolverTest, ANullPathIsNullAndLeavesTheBufferAlone) {
    buffer.fill('#');
    EXPECT_EQ(RootPrefixResolver::libroot_jbrootpath(nullptr, buffer.data()), nullptr);
    EXPECT_EQ(RootPrefixResolver::libroot_rootfspath(nullptr, buffer.data()), nullptr);
    EXPECT_EQ(RootPrefixResolver::libroot_jbrootpath(nullptr, nullptr), nullptr);
    EXPECT_EQ(RootPrefixResolver::libroot_rootfspath(nullptr, nullptr), nullptr);
    EXPECT_EQ(buffer.front(), '#');
}

TEST_F(RootPrefixResolverTest, TheResultIsInTheCallersBuffer) {
    EXPECT_EQ(RootPrefixResolver::libroot_jbrootpath("/a", buffer.data()), buffer.data());
    EXPECT_EQ(RootPrefixResolver::libroot_rootfspath("/a", buffer.data()), buffer.data());
}

TEST_F(RootPrefixResolverTest, WithoutABufferTheCallerOwnsABlockOf1024Bytes) {
    const Block first(RootPrefixResolver::libroot_jbrootpath("/a", nullptr), &std::free);
    const Block second(RootPrefixResolver::libroot_rootfspath("/var/jb/a", nullptr), &std::free);
    EXPECT_STREQ(first.get(), "/var/jb/a");
    EXPECT_STREQ(second.get(), "/a");
    EXPECT_GE(malloc_usable_size(first.get()), bufferSize);
    EXPECT_GE(malloc_usable_size(second.get()), bufferSize);
}

TEST_F(RootPrefixResolverTest, ALongResultIsCutAt1023Bytes) {
    const std::string longest = "/" + std::string(1015, 'a'); // with the prefix 1023
    EXPECT_EQ(jailbreakPath(longest), "/var/jb" + longest);
    EXPECT_EQ(jailbreakPath(longest + "bcd"), "/var/jb" + longest);
    EXPECT_EQ(jailbreakPath("/" + std::string(5000, 'a')).size(), 1023U);
}

TEST_F(RootPrefixResolverTest, ALongRelativePathIsCutAt1023BytesInBothDirections) {
    const std::string path(1024, 'a');
    EXPECT_EQ(jailbreakPath(path), path.substr(0, 1023));
    EXPECT_EQ(rootFileSystemPath(path), path.substr(0, 1023));
}

TEST_F(RootPrefixResolverTest, TheReverseConversionIsCutAt1023BytesToo) {
    EXPECT_EQ(rootFileSystemPath("/" + std::string(1023, 'a')), "/" + std::string(1022, 'a'));
    EXPECT_EQ(rootFileSystemPath("/var/jb/" + std::string(1023, 'a')), "/" + std::string(1022, 'a'));
}

TEST_F(RootPrefixResolverTest, TheTextConversionAnswersTheJailbreakPath) {
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("/Grüße"), "/var/jb/Grüße");
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("relative"), "relative");
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("/" + std::string(2000, 'a')),
              "/var/jb/" + std::string(1015, 'a'));
}

TEST_F(RootPrefixResolverTest, ATextCutInTheMiddleOfACharacterIsNothing) {
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath("/" + std::string(1014, 'a') + "é"), std::nullopt);
}

TEST_F(RootPrefixResolverTest, ATextWithANulEndsThereAsEveryCStringDoes) {
    EXPECT_EQ(RootPrefixResolver::jailbreakRootPath(std::string("/a\0b", 4)), "/var/jb/a");
}
