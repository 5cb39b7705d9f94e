#include "files/HandResolver.h"

#include <sys/stat.h>

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <climits>
#include <utility>

namespace {

constexpr int linksAtMost = 40;
constexpr auto createNew = O_CREAT | O_EXCL;

/// What openat2 refuses and open(2) would let through, or make something of that nobody asked for.
bool areSensible(int flags) {
    if ((flags & O_PATH) != 0)
        return (flags & ~(O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)) == 0;
    return (flags & (O_CREAT | O_DIRECTORY)) != (O_CREAT | O_DIRECTORY);
}

std::expected<FileDescriptor, int> noneYet(std::expected<void, int> step) {
    if (!step)
        return std::unexpected(step.error());
    return FileDescriptor();
}

} // namespace

std::expected<FileDescriptor, int> HandResolver::open(int flags, mode_t mode) {
    if (!areSensible(flags))
        return std::unexpected(EINVAL);
    while (true) {
        const auto name = takeComponent();
        if (name.empty())
            return openCurrent(".", flags, mode);
        if (const bool isLast = rest_.empty() && name != "." && name != ".."; isLast) {
            auto file = finish(name, flags, mode);
            if (!file || *file)
                return file;
        } else if (const auto walked = walkOn(name, flags); !walked) {
            return std::unexpected(walked.error());
        }
    }
}

std::string HandResolver::takeComponent() {
    const auto start = rest_.find_first_not_of('/');
    const auto end = rest_.find('/', start);
    auto name = start == std::string::npos ? std::string() : rest_.substr(start, end - start);
    rest_.erase(0, start == std::string::npos ? start : end);
    return name;
}

std::expected<HandResolver::Seen, int> HandResolver::look(const std::string& name) const {
    auto thing = openCurrent(name, O_PATH | O_NOFOLLOW, 0);
    if (!thing)
        return std::unexpected(thing.error());
    struct stat status{};
    if (fstat(thing->get(), &status) != 0)
        return std::unexpected(errno);
    return Seen{std::move(*thing), status.st_mode};
}

std::expected<FileDescriptor, int> HandResolver::openCurrent(const std::string& name, int flags,
                                                             mode_t mode) const {
    FileDescriptor file(openat(folders_.current(), name.c_str(), flags | O_CLOEXEC, mode));
    if (!file)
        return std::unexpected(errno);
    return file;
}

std::expected<void, int> HandResolver::walkOn(const std::string& name, int flags) {
    if (name == ".")
        return {};
    if (name == "..")
        return folders_.leave();
    const bool onlySlashesFollow = rest_.find_first_not_of('/') == std::string::npos;
    if (onlySlashesFollow && (flags & O_CREAT) != 0)
        return std::unexpected(EISDIR);
    auto seen = look(name);
    if (!seen)
        return std::unexpected(seen.error());
    if (S_ISLNK(seen->mode))
        return follow(seen->thing);
    if (!S_ISDIR(seen->mode))
        return std::unexpected(ENOTDIR);
    folders_.enter(name, std::move(seen->thing));
    return {};
}

std::expected<void, int> HandResolver::countLink() {
    if (++linksFollowed_ > linksAtMost)
        return std::unexpected(ELOOP);
    return {};
}

std::expected<void, int> HandResolver::follow(const FileDescriptor& link) {
    if (const auto counted = countLink(); !counted)
        return counted;
    std::array<char, PATH_MAX> target{};
    const auto length = readlinkat(link.get(), "", target.data(), target.size());
    if (length < 0)
        return std::unexpected(errno);
    if (length == 0)
        return std::unexpected(ENOENT);
    if (target.front() == '/')
        folders_.returnToStart();
    rest_.insert(0, target.data(), static_cast<std::size_t>(length));
    return {};
}

std::expected<FileDescriptor, int> HandResolver::finish(const std::string& name, int flags, mode_t mode) {
    if ((flags & O_NOFOLLOW) != 0 || (flags & createNew) == createNew)
        return openCurrent(name, flags | O_NOFOLLOW, mode);

    auto seen = look(name);
    if (!seen && (seen.error() != ENOENT || (flags & O_CREAT) == 0))
        return std::unexpected(seen.error());
    if (seen && S_ISLNK(seen->mode))
        return noneYet(follow(seen->thing));
    if (seen && (flags & O_DIRECTORY) != 0 && !S_ISDIR(seen->mode))
        return std::unexpected(ENOTDIR);
    if ((flags & O_PATH) != 0)
        return std::move(seen->thing);

    auto file = openCurrent(name, flags | O_NOFOLLOW, mode);
    // By these two the kernel says that a link has taken the thing's place: it counts as one, and is looked
    // at.
    if (file || (file.error() != ELOOP && file.error() != ENOTDIR))
        return file;
    rest_ = name;
    return noneYet(countLink());
}
