#include "files/TreeWalk.h"

#include "files/FolderListing.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

std::expected<void, int> TreeWalk::walk(const std::string& name) {
    auto done = comeBy(name);
    while (done && !levels_.empty()) {
        auto& names = levels_.back().names;
        if (names.empty()) {
            done = leave();
        } else {
            const auto next = std::move(names.back());
            names.pop_back();
            done = comeBy(next);
        }
    }
    return done;
}

std::expected<void, int> TreeWalk::comeBy(const std::string& name) {
    struct stat status{};
    if (fstatat(path_.current(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        const bool wasRemovedMeanwhile = errno == ENOENT && !levels_.empty();
        return wasRemovedMeanwhile ? std::expected<void, int>() : std::unexpected(errno);
    }
    if (S_ISDIR(status.st_mode))
        return enter(name, status);
    return visitor_.visit({path_.current(), name, status});
}

std::expected<void, int> TreeWalk::enter(const std::string& name, const struct stat& status) {
    const auto wanted = visitor_.enter({path_.current(), name, status});
    if (!wanted)
        return std::unexpected(wanted.error());
    if (!*wanted)
        return {};
    if (auto entered = path_.enter(name); !entered)
        return entered;
    auto names = namesInFolder(path_.current());
    if (names)
        levels_.push_back({status, {}, std::move(*names)});
    else
        levels_.push_back({status, std::unexpected(names.error()), {}});
    return {};
}

std::expected<void, int> TreeWalk::leave() {
    const auto level = std::move(levels_.back());
    levels_.pop_back();
    const auto name = path_.name();
    if (auto left = path_.leave(); !left)
        return left;
    return visitor_.leave({path_.current(), name, level.status}, level.reading);
}
