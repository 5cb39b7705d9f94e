#include "DeviceInstaller.h"

#include "TestDevice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

class DeviceInstallerTest : public testing::Test {
protected:
    static void write(const fs::path& path, const std::string& content) {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }

    static std::string read(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// How many files were written; 0 after a failure, of which `problem` then tells.
    std::size_t install() {
        const auto written = DeviceInstaller(treePath).install(*DeviceRoot::open(rootPath));
        problem = written ? "" : written.error();
        return written.value_or(0);
    }

    TemporaryFolder folder;
    const fs::path treePath = folder.path() + "/tree";
    const std::string rootPath = folder.path() + "/root";
    std::string problem;
};

} // namespace

TEST_F(DeviceInstallerTest, MakesTheRootAndAllThatIsInTheTree) {
    write(treePath / "var/jb/a", "A");
    write(treePath / "b", std::string("B\0\n", 3));
    EXPECT_EQ(install(), 2U);
    EXPECT_EQ(read(rootPath + "/var/jb/a"), "A");
    EXPECT_EQ(read(rootPath + "/b"), std::string("B\0\n", 3));
}

TEST_F(DeviceInstallerTest, WritesOnlyWhatIsMissingOrOtherwise) {
    write(treePath / "same", "same");
    write(treePath / "changed", "new");
    write(treePath / "missing", "missing");
    write(treePath / "sub/same", "same");
    ASSERT_EQ(install(), 4U);
    write(rootPath + "/changed", "old");
    fs::remove(rootPath + "/missing");
    struct stat before{};
    ASSERT_EQ(stat((rootPath + "/same").c_str(), &before), 0);

    EXPECT_EQ(install(), 2U);
    EXPECT_EQ(read(rootPath + "/changed"), "new");
    EXPECT_EQ(read(rootPath + "/missing"), "missing");
    struct stat after{};
    ASSERT_EQ(stat((rootPath + "/same").c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(install(), 0U);
    EXPECT_EQ(problem, "");
}

TEST_F(DeviceInstallerTest, LeavesWhatElseIsInTheRootAlone) {
    write(treePath / "folder/a", "A");
    write(rootPath + "/folder/mine", "mine");
    write(rootPath + "/var/mobile/file", "file");
    EXPECT_EQ(install(), 1U);
    EXPECT_EQ(read(rootPath + "/folder/mine"), "mine");
    EXPECT_EQ(read(rootPath + "/var/mobile/file"), "file");
}

TEST_F(DeviceInstallerTest, AFileThatIsInUseKeepsItsOldContent) {
    write(treePath / "code", "new");
    write(rootPath + "/code", "old");
    std::ifstream inUse(rootPath + "/code");
    ASSERT_EQ(install(), 1U);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(inUse), {}), "old");
    EXPECT_EQ(read(rootPath + "/code"), "new");
}

TEST_F(DeviceInstallerTest, ALinkInTheRootLeadsNowhereOutside) {
    write(treePath / "link/a", "A");
    write(treePath / "file", "F");
    write(folder.path() + "/outside/kept", "kept");
    fs::create_directory(rootPath);
    fs::create_directory_symlink(folder.path() + "/outside", rootPath + "/link");
    fs::create_symlink(folder.path() + "/outside/kept", rootPath + "/file");
    install();
    EXPECT_EQ(read(folder.path() + "/outside/kept"), "kept");
    EXPECT_FALSE(fs::exists(folder.path() + "/outside/a"));
    EXPECT_NE(problem, "");
}

TEST_F(DeviceInstallerTest, SaysWhatCannotBeWritten) {
    write(treePath / "a", "A");
    fs::create_directories(rootPath + "/a");
    EXPECT_EQ(install(), 0U);
    EXPECT_EQ(problem, "/a cannot be written: Is a directory");
}

TEST_F(DeviceInstallerTest, SaysThatThereIsNoTree) {
    EXPECT_EQ(install(), 0U);
    EXPECT_EQ(problem, "There is nothing to install in " + treePath.string() + ": No such file or directory");
}

TEST_F(DeviceInstallerTest, KnowsWhetherARootIsEmpty) {
    const auto root = DeviceRoot::open(rootPath);
    ASSERT_TRUE(root);
    EXPECT_TRUE(DeviceInstaller::isEmpty(*root));
    write(rootPath + "/.hidden", "");
    EXPECT_FALSE(DeviceInstaller::isEmpty(*root));
}

TEST_F(DeviceInstallerTest, TheTreeOfAProgramIsBesideItsFolder) {
    const auto programFolder = fs::read_symlink("/proc/self/exe").parent_path();
    EXPECT_EQ(DeviceInstaller::treeOfThisProgram(), programFolder.parent_path() / "share/corvex/device");
}

TEST_F(DeviceInstallerTest, TheBuiltTreeHoldsThePaneItsEntryAndSettings) {
    const DeviceInstaller installer(DEVICE_TREE);
    ASSERT_TRUE(installer.install(*DeviceRoot::open(rootPath)));
    const auto pane = rootPath + "/var/jb/Library/PreferenceBundles/corvexPrefs.bundle/";
    for (const auto* name :
         {"Info.plist", "Root.plist", "corvexPrefs", "icon.png", "icon@2x.png", "icon@3x.png"})
        EXPECT_TRUE(fs::is_regular_file(pane + name)) << name;
    EXPECT_TRUE(fs::exists(rootPath + "/var/jb/Library/PreferenceLoader/Preferences/corvexPrefs.plist"));
    EXPECT_TRUE(fs::exists(rootPath + "/Applications/Preferences.app/AppIcon@3x.png"));
    EXPECT_TRUE(fs::exists(rootPath + "/Applications/Preferences.app/WallpaperDark.png"));
}
