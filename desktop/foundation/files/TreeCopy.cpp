#include "files/TreeCopy.h"

#include "files/FileDescriptor.h"
#include "files/RegularFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

namespace {

// The copy belongs to whoever copies: it must not lend that one's rights as the original lent its owner's.
constexpr mode_t copiedModeBits = 01777;

std::array<timespec, 2> timesOf(const struct stat& status) {
    return {status.st_atim, status.st_mtim};
}

std::expected<void, int> answer(int result) {
    if (result != 0)
        return std::unexpected(errno);
    return {};
}

std::expected<void, int> setModeAndTimes(int file, const struct stat& original) {
    if (fchmod(file, original.st_mode & copiedModeBits) != 0)
        return std::unexpected(errno);
    return answer(futimens(file, timesOf(original).data()));
}

} // namespace

std::expected<void, int> TreeCopy::visit(const TreeEntry& entry) {
    if (S_ISREG(entry.status.st_mode))
        return copyFile(entry);
    if (S_ISLNK(entry.status.st_mode))
        return copyLink(entry);
    return std::unexpected(ENOTSUP);
}

std::expected<bool, int> TreeCopy::enter(const TreeEntry& folder) {
    if (isTheCopyItself(folder.status))
        return false;
    const auto name = nameOfCopy(folder);
    // Until all is in it, only its owner needs it.
    if (mkdirat(target_.current(), name.c_str(), S_IRWXU) != 0)
        return std::unexpected(errno);
    if (const auto entered = target_.enter(name); !entered)
        return std::unexpected(entered.error());
    if (target_.depth() == 1) {
        struct stat made{};
        if (fstat(target_.current(), &made) != 0)
            return std::unexpected(errno);
        device_ = made.st_dev;
        inode_ = made.st_ino;
    }
    return true;
}

std::expected<void, int> TreeCopy::leave(const TreeEntry& folder, std::expected<void, int> reading) {
    if (!reading)
        return reading;
    const FileDescriptor made(openat(target_.current(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!made)
        return std::unexpected(errno);
    if (auto set = setModeAndTimes(made.get(), folder.status); !set)
        return set;
    return target_.leave();
}

const std::string& TreeCopy::nameOfCopy(const TreeEntry& entry) const {
    return target_.depth() == 0 ? toName_ : entry.name;
}

std::expected<void, int> TreeCopy::copyFile(const TreeEntry& entry) const {
    auto from = RegularFile::openIn(entry.folder, entry.name, O_RDONLY);
    if (!from)
        return std::unexpected(from.error());
    auto to = RegularFile::openIn(target_.current(), nameOfCopy(entry), O_WRONLY | O_CREAT | O_EXCL,
                                  S_IRUSR | S_IWUSR);
    if (!to)
        return std::unexpected(to.error());
    if (auto copied = from->copyTo(*to); !copied)
        return copied;
    return setModeAndTimes(to->get(), from->status());
}

std::expected<void, int> TreeCopy::copyLink(const TreeEntry& entry) const {
    std::array<char, PATH_MAX> target{};
    const auto length = readlinkat(entry.folder, entry.name.c_str(), target.data(), target.size() - 1);
    if (length < 0)
        return std::unexpected(errno);
    const auto& name = nameOfCopy(entry);
    if (symlinkat(target.data(), target_.current(), name.c_str()) != 0)
        return std::unexpected(errno);
    return answer(
        utimensat(target_.current(), name.c_str(), timesOf(entry.status).data(), AT_SYMLINK_NOFOLLOW));
}

bool TreeCopy::isTheCopyItself(const struct stat& folder) const {
    return target_.depth() > 0 && folder.st_dev == device_ && folder.st_ino == inode_;
}
