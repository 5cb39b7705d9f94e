#include "NSFileManagerFixture.h"

#include "Foundation/Format.h"
#include "files/FileDescriptor.h"

#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

NSFileManagerFixture::NSFileManagerFixture() {
    setMode("", 0755); // for tests without privileges
}

void NSFileManagerFixture::link(const std::string& target, std::string_view path) const {
    ASSERT_EQ(symlink(target.c_str(), device.hostPath(path).c_str()), 0);
}

void NSFileManagerFixture::makeFolder(std::string_view path) const {
    std::filesystem::create_directories(device.hostPath(path));
}

void NSFileManagerFixture::makeFifo(std::string_view path) const {
    ASSERT_EQ(mkfifo(device.hostPath(path).c_str(), 0644), 0);
}

void NSFileManagerFixture::setMode(std::string_view path, mode_t mode) const {
    ASSERT_EQ(chmod(device.hostPath(path).c_str(), mode), 0);
}

void NSFileManagerFixture::makeDeepTree(std::string_view path, const std::string& name, int levels) const {
    FileDescriptor folder(open(device.hostPath(path).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (int i = 0; i < levels; ++i) {
        ASSERT_EQ(mkdirat(folder.get(), name.c_str(), 0755), 0);
        folder = FileDescriptor(openat(folder.get(), name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
}

bool NSFileManagerFixture::isThere(std::string_view path) const {
    struct stat status{};
    return lstat(device.hostPath(path).c_str(), &status) == 0;
}

struct stat NSFileManagerFixture::statusOf(std::string_view path) const {
    struct stat status{};
    EXPECT_EQ(lstat(device.hostPath(path).c_str(), &status), 0) << path;
    return status;
}

void NSFileManagerFixture::expectError(const NSError& error, std::int64_t code, const std::string& text,
                                       int hostError, std::string_view path) {
    EXPECT_EQ(error.domain(), NSCocoaErrorDomain);
    EXPECT_EQ(error.code(), code);
    EXPECT_EQ(error.localizedDescription(), text);
    const auto description = error.description();
    EXPECT_TRUE(description.contains(stringWithFormat("NSFilePath=%@,", path))) << description;
    EXPECT_TRUE(description.contains(stringWithFormat(
        "NSUnderlyingError={Error Domain=NSPOSIXErrorDomain Code=%@ ", std::to_string(hostError))))
        << description;
}
