#include "preferences/PreferenceFolder.h"

#include "files/AtomicFile.h"
#include "files/FolderListing.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <fcntl.h>

#include <cerrno>

std::expected<PreferenceFolder, int> PreferenceFolder::lock(const DeviceRoot& root) {
    auto folder = root.open(path, O_RDONLY | O_DIRECTORY);
    if (!folder)
        return std::unexpected(folder.error());
    while (flock(folder->get(), LOCK_EX) != 0) {
        if (errno != EINTR)
            return std::unexpected(errno);
    }
    PreferenceFolder locked(std::move(*folder));
    locked.removeTemporaries();
    return locked;
}

std::expected<void, int> PreferenceFolder::keepAside(const std::string& fileName, ino_t inode) const {
    for (unsigned number = 1;; ++number) {
        const auto name = fileName + ".damaged" + (number == 1 ? "" : "-" + std::to_string(number));
        struct stat other{};
        const bool isTaken = fstatat(folder_.get(), name.c_str(), &other, AT_SYMLINK_NOFOLLOW) == 0;
        if (isTaken && other.st_ino == inode)
            return {};
        if (!isTaken && linkat(folder_.get(), fileName.c_str(), folder_.get(), name.c_str(), 0) == 0)
            return {};
        if (!isTaken && errno != EEXIST)
            return std::unexpected(errno);
    }
}

std::expected<void, int> PreferenceFolder::replace(const std::string& fileName,
                                                   std::string_view bytes) const {
    return AtomicFile::replace(folder_, fileName, bytes, temporaryPrefix);
}

void PreferenceFolder::removeTemporaries() const {
    for (const auto& name : namesInFolder(folder_.get()).value_or(std::vector<std::string>())) {
        if (name.starts_with(temporaryPrefix))
            unlinkat(folder_.get(), name.c_str(), 0);
    }
}
