#include "files/HandResolver.h"

#include "TestDevice.h"
#include "files/DeviceRoot.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

namespace {

constexpr auto paths = std::to_array<std::string_view>({"/",
                                                        "///",
                                                        ".",
                                                        "..",
                                                        "./",
                                                        "file",
                                                        "file/",
                                                        "file//",
                                                        "file/.",
                                                        "file/..",
                                                        "file/x",
                                                        "folder",
                                                        "folder/",
                                                        "folder/.",
                                                        "folder/..",
                                                        "folder/./",
                                                        "missing",
                                                        "missing/",
                                                        "missing/.",
                                                        "missing/..",
                                                        "missing/x",
                                                        "to-file",
                                                        "to-file/",
                                                        "to-file/x",
                                                        "to-folder",
                                                        "to-folder/",
                                                        "to-folder/..",
                                                        "to-folder/new",
                                                        "to-file-/",
                                                        "to-folder-.",
                                                        "dangling",
                                                        "dangling/",
                                                        "dangling-/",
                                                        "dangling-up",
                                                        "up",
                                                        "up/file",
                                                        "loop",
                                                        "loop/",
                                                        "loop/x",
                                                        "to-root",
                                                        "to-root/file",
                                                        "fifo/x",
                                                        "folder/new",
                                                        "folder/new/",
                                                        "to-to-file",
                                                        "to-to-folder",
                                                        "folder/../x",
                                                        "folder/../../file"});

constexpr auto flagSets = std::to_array<int>({O_RDONLY,
                                              O_WRONLY,
                                              O_RDWR | O_TRUNC,
                                              O_DIRECTORY,
                                              O_NOFOLLOW,
                                              O_NOFOLLOW | O_DIRECTORY,
                                              O_PATH,
                                              O_PATH | O_DIRECTORY,
                                              O_PATH | O_NOFOLLOW,
                                              O_PATH | O_NOFOLLOW | O_DIRECTORY,
                                              O_PATH | O_CREAT,
                                              O_PATH | O_RDWR,
                                              O_RDONLY | O_CREAT,
                                              O_RDWR | O_CREAT,
                                              O_RDWR | O_CREAT | O_TRUNC,
                                              O_RDWR | O_CREAT | O_EXCL,
                                              O_RDWR | O_CREAT | O_NOFOLLOW,
                                              O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW,
                                              O_RDWR | O_CREAT | O_DIRECTORY,
                                              O_RDWR | O_TMPFILE,
                                              O_RDWR | O_TMPFILE | O_NOFOLLOW});

constexpr auto mayAppear = std::to_array({"missing", "new", "x", "folder/new"});
constexpr std::string_view content = "text";

/// A folder with one of everything, which a call may change.
class SmallTree {
public:
    SmallTree() : root_(::open(folder_.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        EXPECT_EQ(mkdirat(root_.get(), "folder", 0755), 0);
        EXPECT_EQ(mkfifoat(root_.get(), "fifo", 0644), 0);
        restore();
        link("file", "to-file");
        link("file/", "to-file-");
        link("folder", "to-folder");
        link("folder/.", "to-folder-.");
        link("to-file", "to-to-file");
        link("/to-folder", "to-to-folder");
        link("missing", "dangling");
        link("missing/", "dangling-");
        link("missing/../file", "dangling-up");
        link("..", "up");
        link("/", "to-root");
        link("loop", "loop");
    }

    /// Undoes what a call changed.
    void restore() const {
        for (const auto* const name : mayAppear)
            unlinkat(root_.get(), name, 0);
        struct stat status{};
        if (fstatat(root_.get(), "file", &status, 0) == 0 && status.st_size == std::ssize(content))
            return;
        const FileDescriptor file(openat(root_.get(), "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
        EXPECT_EQ(::write(file.get(), content.data(), content.size()), std::ssize(content));
    }

    /// What came of opening: the error, or what was opened; and what is in the folder now.
    [[nodiscard]] std::string describe(const std::expected<FileDescriptor, int>& opened) const {
        if (!opened)
            return "error " + std::to_string(opened.error()) + " | " + state();
        struct stat status{};
        EXPECT_EQ(fstat(opened->get(), &status), 0);
        return "mode " + std::to_string(status.st_mode) + " sizes " + sizesOf(status) + " | " + state();
    }

    [[nodiscard]] const std::string& path() const { return folder_.path(); }

    [[nodiscard]] int root() const { return root_.get(); }

private:
    void link(const char* target, const char* name) const {
        EXPECT_EQ(symlinkat(target, root_.get(), name), 0);
    }

    [[nodiscard]] static std::string sizesOf(const struct stat& status) {
        return std::to_string(status.st_nlink) + "/" +
               std::to_string(S_ISREG(status.st_mode) ? status.st_size : 0);
    }

    [[nodiscard]] std::string state() const {
        std::string text;
        const auto add = [&](const char* name) {
            struct stat status{};
            const bool isThere = fstatat(root_.get(), name, &status, AT_SYMLINK_NOFOLLOW) == 0;
            text += name + (isThere ? ":" + sizesOf(status) : std::string(":none")) + " ";
        };
        add("file");
        std::ranges::for_each(mayAppear, add);
        return text;
    }

    TemporaryFolder folder_;
    FileDescriptor root_;
};

} // namespace

TEST(HandResolver, AnswersLikeTheKernelForEveryKindOfPathAndFlags) {
    if (DeviceRoot::open(TemporaryFolder().path())->resolution() != DeviceRoot::Resolution::Kernel)
        GTEST_SKIP() << "the kernel resolves no paths in a root here";
    const SmallTree forKernel;
    const SmallTree forHand;
    const auto root = DeviceRoot::open(forKernel.path(), DeviceRoot::Resolution::Kernel);
    for (const auto path : paths) {
        for (const auto flags : flagSets) {
            forKernel.restore();
            forHand.restore();
            const auto byKernel = forKernel.describe(root->open(path, flags, 0644));
            const auto byHand = forHand.describe(HandResolver(forHand.root(), path).open(flags, 0644));
            EXPECT_EQ(byHand, byKernel) << path << " with flags " << std::oct << flags;
        }
    }
}

TEST(HandResolver, WalksBackUpFromFartherDownThanItKeepsFoldersOpen) {
    const TemporaryFolder folder;
    const FileDescriptor root(::open(folder.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    std::string down;
    std::string up;
    for (int i = 0; i < 500; ++i) {
        down += "/d";
        up += "/..";
        ASSERT_EQ(mkdirat(root.get(), down.substr(1).c_str(), 0755), 0);
    }
    const FileDescriptor file(openat(root.get(), "d/file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    ASSERT_TRUE(file);
    EXPECT_TRUE(HandResolver(root.get(), down + up + "/d/file").open(O_RDONLY, 0).has_value());
    EXPECT_TRUE(HandResolver(root.get(), down + up + "/../../d/file").open(O_RDONLY, 0).has_value());
    EXPECT_EQ(HandResolver(root.get(), down + up + "/file").open(O_RDONLY, 0).error(), ENOENT);
}
