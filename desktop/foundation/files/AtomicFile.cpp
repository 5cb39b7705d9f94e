#include "files/AtomicFile.h"

#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <span>
#include <utility>

namespace {

constexpr mode_t modeOfNewFile = 0600;

bool makeNamesLasting(int folder) {
    const FileDescriptor readable(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return readable && fsync(readable.get()) == 0;
}

} // namespace

AtomicFile::AtomicFile(int folder, std::string temporaryName, RegularFile file)
    : folder_(folder),
      temporaryName_(std::move(temporaryName)),
      file_(std::move(file)) {}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : folder_(other.folder_),
      temporaryName_(std::exchange(other.temporaryName_, {})),
      file_(std::move(other.file_)) {}

AtomicFile::~AtomicFile() {
    if (!temporaryName_.empty())
        unlinkat(folder_, temporaryName_.c_str(), 0);
}

std::expected<void, int> AtomicFile::replace(const FileDescriptor& folder, const std::string& name,
                                             std::string_view bytes, std::string_view temporaryPrefix) {
    auto file = create(folder.get(), temporaryPrefix);
    if (!file)
        return std::unexpected(file.error());
    if (auto written = file->file_.write(std::as_bytes(std::span(bytes))); !written)
        return written;
    if (!file->takeModeOf(name) || !file->takePlaceOf(name))
        return std::unexpected(errno);
    return {};
}

std::expected<void, int> AtomicFile::makeCopy(const FileDescriptor& folder, const std::string& name,
                                              RegularFile& original) {
    auto file = create(folder.get(), usualPrefix);
    if (!file)
        return std::unexpected(file.error());
    if (auto copied = original.copyTo(file->file_); !copied)
        return copied;
    if (fchmod(file->file_.get(), original.status().st_mode & ACCESSPERMS) != 0 || !file->takeFreePlace(name))
        return std::unexpected(errno);
    return {};
}

std::expected<AtomicFile, int> AtomicFile::create(int folder, std::string_view temporaryPrefix) {
    static std::atomic<std::uint64_t> count = 0;
    while (true) {
        const auto name =
            std::string(temporaryPrefix) + std::to_string(getpid()) + '-' + std::to_string(++count);
        auto file = RegularFile::openIn(folder, name, O_WRONLY | O_CREAT | O_EXCL, modeOfNewFile);
        if (file)
            return AtomicFile(folder, name, std::move(*file));
        if (file.error() != EEXIST) // left over by a process that had this one's number
            return std::unexpected(file.error());
    }
}

bool AtomicFile::takeModeOf(const std::string& name) {
    struct stat old{};
    if (fstatat(folder_, name.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(old.st_mode))
        return true;
    return fchmod(file_.get(), old.st_mode & ~static_cast<mode_t>(S_IFMT)) == 0;
}

bool AtomicFile::takePlaceOf(const std::string& name) {
    return takePlace(name, 0);
}

bool AtomicFile::takeFreePlace(const std::string& name) {
    return takePlace(name, RENAME_NOREPLACE);
}

bool AtomicFile::takePlace(const std::string& name, unsigned flags) {
    if (fsync(file_.get()) != 0 ||
        renameat2(folder_, temporaryName_.c_str(), folder_, name.c_str(), flags) != 0)
        return false;
    temporaryName_.clear();
    return makeNamesLasting(folder_);
}
