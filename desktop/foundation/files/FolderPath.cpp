#include "files/FolderPath.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

namespace {

constexpr std::size_t openAtMost = 32;

std::expected<FileDescriptor, int> openFolder(int parent, const std::string& name) {
    FileDescriptor folder(openat(parent, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder)
        return std::unexpected(errno);
    return folder;
}

} // namespace

std::expected<void, int> FolderPath::enter(std::string name) {
    auto folder = openFolder(current(), name);
    if (!folder)
        return std::unexpected(folder.error());
    enter(std::move(name), std::move(*folder));
    return {};
}

void FolderPath::enter(std::string name, FileDescriptor folder) {
    steps_.push_back({std::move(name), std::move(folder)});
    closeWhatLiesFarBehind(steps_.size() - 1);
}

std::expected<void, int> FolderPath::leave() {
    if (steps_.empty())
        return {};
    steps_.pop_back();
    const bool isOpen = steps_.empty() || steps_.back().folder;
    return isOpen ? std::expected<void, int>() : walkAgain();
}

std::expected<void, int> FolderPath::walkAgain() {
    int parent = start_;
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        auto folder = openFolder(parent, steps_[i].name);
        if (!folder)
            return std::unexpected(folder.error());
        steps_[i].folder = std::move(*folder);
        parent = steps_[i].folder.get();
        closeWhatLiesFarBehind(i);
    }
    return {};
}

void FolderPath::closeWhatLiesFarBehind(std::size_t step) {
    if (step >= openAtMost)
        steps_[step - openAtMost].folder.close();
}
