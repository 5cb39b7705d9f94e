#include "Meanwhile.h"
#include "TestDevice.h"
#include "files/DeviceRoot.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace {

using Resolution = DeviceRoot::Resolution;

constexpr int attemptsAtLeast = 20000;
constexpr int attemptsAtMost = 2000000;

/// "root/folder/file" says "inside", "outside/file" beside the root says "outside". The folder has a twin
/// "root/other" that tests replace by a link.
class DeviceRootRaceTest : public testing::TestWithParam<Resolution> {
protected:
    DeviceRootRaceTest() {
        for (const auto* const path : {"/root/folder", "/root/folder/inner", "/outside"})
            std::filesystem::create_directories(folder.path() + path);
        std::ofstream(folder.path() + "/root/folder/file") << "inside";
        std::ofstream(folder.path() + "/outside/file") << "outside";
    }

    void linkOtherTo(const std::string& target) const {
        std::filesystem::create_symlink(target, folder.path() + "/root/other");
    }

    /// Lets the folder and the link "other" change places.
    void exchange() const {
        renameat2(AT_FDCWD, (folder.path() + "/root/folder").c_str(), AT_FDCWD,
                  (folder.path() + "/root/other").c_str(), RENAME_EXCHANGE);
    }

    /// The content of a file of the device, empty when it cannot be opened.
    [[nodiscard]] std::string read(std::string_view path) const {
        const auto file = root().open(path, O_RDONLY);
        std::array<char, 16> buffer{};
        const auto length = file ? ::read(file->get(), buffer.data(), buffer.size()) : 0;
        return {buffer.data(), static_cast<std::size_t>(length)};
    }

    /// Makes attempts until there were many, and both some that went well and some that failed.
    static void attemptOften(const std::function<bool()>& attempt) {
        int succeeded = 0;
        int failed = 0;
        const auto isEnough = [&] {
            return succeeded + failed >= attemptsAtLeast && succeeded > 0 && failed > 0;
        };
        while (!isEnough() && succeeded + failed < attemptsAtMost)
            ++(attempt() ? succeeded : failed);
        EXPECT_GT(succeeded, 0);
        EXPECT_GT(failed, 0);
    }

    void expectTheOutsideUntouched() const {
        const std::filesystem::directory_iterator names(folder.path() + "/outside");
        EXPECT_EQ(std::distance(begin(names), end(names)), 1);
        std::string content;
        std::ifstream(folder.path() + "/outside/file") >> content;
        EXPECT_EQ(content, "outside");
    }

    [[nodiscard]] const DeviceRoot& root() const { return *root_; }

    TemporaryFolder folder;

private:
    std::expected<DeviceRoot, int> root_ = DeviceRoot::open(folder.path() + "/root", GetParam());
};

/// Likewise, with the link in each of the ways in which it can point outside.
class DeviceRootLinkRaceTest : public DeviceRootRaceTest {
protected:
    DeviceRootLinkRaceTest() { linkOtherTo(folder.path() + "/outside"); }
};

} // namespace

TEST_P(DeviceRootLinkRaceTest, NothingOutsideIsRead) {
    const Meanwhile exchanging([this] { exchange(); });
    attemptOften([this] {
        const auto content = read("/folder/file");
        EXPECT_TRUE(content.empty() || content == "inside") << content;
        return !content.empty();
    });
}

TEST_P(DeviceRootLinkRaceTest, NothingOutsideIsMade) {
    {
        const Meanwhile exchanging([this] { exchange(); });
        attemptOften([this, i = 0]() mutable {
            const auto path = "/folder/" + std::to_string(++i % 100);
            return root().open(path, O_WRONLY | O_CREAT | O_TRUNC, 0644).has_value();
        });
    }
    expectTheOutsideUntouched();
}

TEST_P(DeviceRootLinkRaceTest, NothingOutsideIsRemoved) {
    {
        const Meanwhile exchanging([this] { exchange(); });
        attemptOften([this] {
            const auto place = root().locate("/folder/file");
            const bool removed = place && unlinkat(place->folder.get(), place->name.c_str(), 0) == 0;
            return removed && mknodat(place->folder.get(), "file", S_IFREG | 0644, 0) == 0;
        });
    }
    expectTheOutsideUntouched();
}

TEST_P(DeviceRootRaceTest, AFileThatIsReplacedByALinkIsFoundOrNot) {
    linkOtherTo(folder.path() + "/outside/file");
    const auto inner = folder.path() + "/root/folder/file";
    const auto other = folder.path() + "/root/other";
    {
        const Meanwhile exchanging(
            [&] { renameat2(AT_FDCWD, inner.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
        attemptOften([this] {
            const auto file = root().open("/folder/file", O_WRONLY | O_TRUNC);
            return file.has_value();
        });
    }
    expectTheOutsideUntouched();
}

TEST_P(DeviceRootRaceTest, APathThatLeadsToAFolderAtEveryMomentAlwaysOpens) {
    linkOtherTo("/root-folder");
    std::filesystem::create_directory(folder.path() + "/root/root-folder");
    const Meanwhile exchanging([this] { exchange(); });
    for (int i = 0; i < attemptsAtLeast; ++i) {
        const auto opened = root().open("/folder", O_RDONLY | O_DIRECTORY);
        ASSERT_TRUE(opened.has_value()) << opened.error();
    }
}

TEST_P(DeviceRootRaceTest, AFolderThatIsMovedOutsideDoesNotLeadThereByItsParent) {
    const auto inside = folder.path() + "/root/folder/inner";
    const auto outside = folder.path() + "/outside/inner";
    const Meanwhile moving([&] {
        static_cast<void>(std::rename(inside.c_str(), outside.c_str()));
        static_cast<void>(std::rename(outside.c_str(), inside.c_str()));
    });
    attemptOften([this] {
        const auto content = read("/folder/inner/../file");
        EXPECT_TRUE(content.empty() || content == "inside") << content;
        return !content.empty();
    });
}

namespace {

std::string nameOf(const testing::TestParamInfo<Resolution>& suite) {
    return suite.param == Resolution::Kernel ? "Kernel" : "ByHand";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Resolutions, DeviceRootRaceTest,
                         testing::Values(Resolution::Kernel, Resolution::ByHand), nameOf);
INSTANTIATE_TEST_SUITE_P(Resolutions, DeviceRootLinkRaceTest,
                         testing::Values(Resolution::Kernel, Resolution::ByHand), nameOf);
