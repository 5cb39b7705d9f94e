#include "files/FolderListing.h"

#include "files/FileDescriptor.h"

#include <dirent.h>
#include <fcntl.h>

#include <cerrno>
#include <memory>

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

OpenFolder openToRead(int folder) {
    FileDescriptor readable(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    OpenFolder opened(readable ? fdopendir(readable.get()) : nullptr);
    if (opened)
        static_cast<void>(readable.release()); // it is the open folder's now
    return opened;
}

} // namespace

std::expected<std::vector<std::string>, int> namesInFolder(int folder) {
    const auto opened = openToRead(folder);
    if (!opened)
        return std::unexpected(errno);
    std::vector<std::string> names;
    errno = 0;
    while (const auto* const entry = readdir(opened.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
        errno = 0;
    }
    if (errno != 0)
        return std::unexpected(errno);
    return names;
}
