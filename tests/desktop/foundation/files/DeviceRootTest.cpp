#include "files/DeviceRoot.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <climits>
#include <string>

namespace {

using Resolution = DeviceRoot::Resolution;

/// A root folder with a neighbour outside of it, under both ways of resolving.
class DeviceRootTest : public testing::TestWithParam<Resolution> {
protected:
    DeviceRootTest() : host(::open(folder.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        mkdirat(host.get(), "root", 0755);
        mkdirat(host.get(), "outside", 0755);
        writeOnHost("outside/file", "outside");
        writeOnHost("root/file", "inside");
        mkdirat(host.get(), "root/folder", 0755);
        writeOnHost("root/folder/file", "deeper");
    }

    void writeOnHost(const std::string& path, std::string_view content) const {
        const FileDescriptor file(openat(host.get(), path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644));
        ASSERT_EQ(::write(file.get(), content.data(), content.size()), static_cast<ssize_t>(content.size()));
    }

    void link(const std::string& target, const std::string& path) const {
        ASSERT_EQ(symlinkat(target.c_str(), host.get(), ("root" + path).c_str()), 0);
    }

    [[nodiscard]] bool isOnHost(const std::string& path) const {
        return faccessat(host.get(), path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    }

    /// What a device path leads to: the content of a file, or the error number as text.
    [[nodiscard]] std::string read(std::string_view path) const {
        const auto file = root().open(path, O_RDONLY);
        if (!file)
            return std::to_string(file.error());
        std::array<char, 64> buffer{};
        const auto length = ::read(file->get(), buffer.data(), buffer.size());
        return length < 0 ? "a folder" : std::string(buffer.data(), static_cast<std::size_t>(length));
    }

    [[nodiscard]] int errorOf(std::string_view path, int flags = O_RDONLY) const {
        const auto file = root().open(path, flags, 0644);
        return file ? 0 : file.error();
    }

    [[nodiscard]] const DeviceRoot& root() const { return *root_; }

    TemporaryFolder folder;
    FileDescriptor host;

private:
    std::expected<DeviceRoot, int> root_ = DeviceRoot::open(folder.path() + "/root", GetParam());
};

} // namespace

TEST_P(DeviceRootTest, OpensAFileByAbsoluteAndByRelativePath) {
    EXPECT_EQ(read("/file"), "inside");
    EXPECT_EQ(read("file"), "inside");
    EXPECT_EQ(read("//folder/.//file"), "deeper");
}

TEST_P(DeviceRootTest, MakesItsFolderWithItsParents) {
    const auto made = DeviceRoot::open(folder.path() + "/a/b", GetParam());
    ASSERT_TRUE(made.has_value());
    EXPECT_TRUE(isOnHost("a/b"));
    EXPECT_EQ(made->hostFolder(), folder.path() + "/a/b");
    EXPECT_EQ(made->resolution(), GetParam());
}

TEST_P(DeviceRootTest, FailsWhenAFileIsInTheWayOfItsFolder) {
    const auto made = DeviceRoot::open(folder.path() + "/outside/file/root", GetParam());
    ASSERT_FALSE(made.has_value());
    EXPECT_EQ(made.error(), ENOTDIR);
}

TEST_P(DeviceRootTest, TheParentOfTheRootIsTheRoot) {
    EXPECT_EQ(read("/../file"), "inside");
    EXPECT_EQ(read("../../outside/file"), std::to_string(ENOENT));
    EXPECT_EQ(read("/folder/../../../file"), "inside");
}

TEST_P(DeviceRootTest, DotDotAfterALinkIsTheParentOfWhatItLeadsTo) {
    mkdirat(host.get(), "root/folder/inner", 0755);
    link("folder/inner", "/link");
    EXPECT_EQ(read("/link/../file"), "deeper");
}

TEST_P(DeviceRootTest, AbsoluteLinksStartAtTheRoot) {
    link("/folder", "/folder/absolute");
    EXPECT_EQ(read("/folder/absolute/file"), "deeper");
    link(folder.path() + "/outside", "/escape");
    EXPECT_EQ(read("/escape/file"), std::to_string(ENOENT));
}

TEST_P(DeviceRootTest, RelativeLinksStartAtTheirFolder) {
    link("file", "/folder/link");
    EXPECT_EQ(read("/folder/link"), "deeper");
    link("../file", "/folder/up");
    EXPECT_EQ(read("/folder/up"), "inside");
}

TEST_P(DeviceRootTest, LinksToAParentOfTheRootLeadToTheRoot) {
    link("../../../..", "/up");
    EXPECT_EQ(read("/up/file"), "inside");
    link("../outside/file", "/escape");
    EXPECT_EQ(read("/escape"), std::to_string(ENOENT));
}

TEST_P(DeviceRootTest, ChainsOf40LinksAreFollowedAndNoLongerOnes) {
    link("file", "/1");
    for (int i = 2; i <= 41; ++i)
        link(std::to_string(i - 1), "/" + std::to_string(i));
    EXPECT_EQ(read("/40"), "inside");
    EXPECT_EQ(errorOf("/41"), ELOOP);
}

TEST_P(DeviceRootTest, LoopsOfLinksFail) {
    link("b", "/a");
    link("a", "/b");
    EXPECT_EQ(errorOf("/a"), ELOOP);
    EXPECT_EQ(errorOf("/a/file"), ELOOP);
}

TEST_P(DeviceRootTest, DanglingLinksLeadNowhere) {
    link("missing", "/dangling");
    EXPECT_EQ(errorOf("/dangling"), ENOENT);
    EXPECT_EQ(errorOf("/dangling/file"), ENOENT);
}

TEST_P(DeviceRootTest, CreatingThroughADanglingLinkMakesTheFileInside) {
    link(folder.path() + "/outside/new", "/dangling");
    EXPECT_EQ(errorOf("/dangling", O_WRONLY | O_CREAT), ENOENT);
    link("/../outside-new", "/second");
    EXPECT_EQ(errorOf("/second", O_WRONLY | O_CREAT), 0);
    EXPECT_TRUE(isOnHost("root/outside-new"));
    EXPECT_FALSE(isOnHost("outside-new"));
    EXPECT_FALSE(isOnHost("outside/new"));
}

TEST_P(DeviceRootTest, ExclusiveCreationFollowsNoLink) {
    link("missing", "/dangling");
    EXPECT_EQ(errorOf("/dangling", O_WRONLY | O_CREAT | O_EXCL), EEXIST);
    EXPECT_FALSE(isOnHost("root/missing"));
}

TEST_P(DeviceRootTest, CreationUsesTheMode) {
    ASSERT_TRUE(root().open("/new", O_WRONLY | O_CREAT, 0600).has_value());
    struct stat status{};
    ASSERT_EQ(fstatat(host.get(), "root/new", &status, 0), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_P(DeviceRootTest, AModeWithoutCreationIsIgnored) {
    EXPECT_TRUE(root().open("/file", O_RDONLY, 0600).has_value());
}

TEST_P(DeviceRootTest, TruncationEmptiesTheFile) {
    EXPECT_EQ(errorOf("/file", O_WRONLY | O_TRUNC), 0);
    EXPECT_EQ(read("/file"), "");
}

TEST_P(DeviceRootTest, EmptyPathsAndPathsWithANulByteAreRefused) {
    using std::string_view_literals::operator""sv;
    EXPECT_EQ(errorOf(""), ENOENT);
    EXPECT_EQ(errorOf("/file\0"sv), EINVAL);
    EXPECT_EQ(errorOf("\0"sv), EINVAL);
    EXPECT_EQ(root().locate("").error(), ENOENT);
    EXPECT_EQ(root().locate("/file\0x"sv).error(), EINVAL);
}

TEST_P(DeviceRootTest, PathsAndNamesThatAreTooLongAreRefused) {
    EXPECT_EQ(errorOf(std::string(PATH_MAX - 5, '/') + "file"), 0);
    EXPECT_EQ(errorOf(std::string(PATH_MAX - 4, '/') + "file"), ENAMETOOLONG);
    EXPECT_EQ(errorOf(std::string(NAME_MAX + 1, 'a')), ENAMETOOLONG);
    EXPECT_EQ(errorOf(std::string(NAME_MAX, 'a')), ENOENT);
    EXPECT_EQ(root().locate(std::string(PATH_MAX, '/')).error(), ENAMETOOLONG);
}

TEST_P(DeviceRootTest, DescriptorsAreClosedOnExec) {
    link("file", "/link");
    for (const auto* const path : {"/file", "/link", "/", "/folder/"}) {
        const auto file = root().open(path, O_RDONLY);
        ASSERT_TRUE(file.has_value());
        EXPECT_EQ(fcntl(file->get(), F_GETFD), FD_CLOEXEC) << path;
    }
}

TEST_P(DeviceRootTest, LocatesAThingWithoutFollowingItsLastComponent) {
    link("/folder", "/link");
    const auto place = root().locate("/link/file/");
    ASSERT_TRUE(place.has_value());
    EXPECT_EQ(place->name, "file");
    struct stat located{};
    struct stat expected{};
    ASSERT_EQ(fstat(place->folder.get(), &located), 0);
    ASSERT_EQ(fstatat(host.get(), "root/folder", &expected, 0), 0);
    EXPECT_EQ(located.st_ino, expected.st_ino);
    EXPECT_EQ(root().locate("/link")->name, "link");
    EXPECT_EQ(root().locate("link")->name, "link");
}

TEST_P(DeviceRootTest, LocatesTheRootAndPathsThatEndInDotsAsTheFolderItself) {
    struct stat expected{};
    ASSERT_EQ(fstatat(host.get(), "root", &expected, 0), 0);
    for (const auto* const path : {"/", "//", "/..", "/folder/..", ".", ".."}) {
        const auto place = root().locate(path);
        ASSERT_TRUE(place.has_value()) << path;
        EXPECT_EQ(place->name, ".") << path;
        struct stat located{};
        ASSERT_EQ(fstat(place->folder.get(), &located), 0);
        EXPECT_EQ(located.st_ino, expected.st_ino) << path;
    }
}

TEST_P(DeviceRootTest, LocatesNothingBelowAMissingFolderOrAFile) {
    EXPECT_EQ(root().locate("/missing/file").error(), ENOENT);
    EXPECT_EQ(root().locate("/file/x").error(), ENOTDIR);
}

INSTANTIATE_TEST_SUITE_P(Resolutions, DeviceRootTest, testing::Values(Resolution::Kernel, Resolution::ByHand),
                         [](const auto& suite) {
                             return suite.param == Resolution::Kernel ? "Kernel" : "ByHand";
                         });
