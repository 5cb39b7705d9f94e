#pragma once

#include "files/FileDescriptor.h"
#include "files/FolderPath.h"

#include <sys/types.h>

#include <expected>
#include <string>
#include <string_view>

/// Opens one path inside a folder of the host, component by component: what openat2 does with
/// RESOLVE_IN_ROOT, for hosts that lack it. Links are read and walked here, the kernel follows none. Made for
/// one call.
class HandResolver {
public:
    /// \param root the folder that stands for "/"; borrowed
    /// \param path from "/" on; not empty and without NUL bytes
    HandResolver(int root, std::string_view path) : folders_(root), rest_(path) {}

    /// Opens what the path leads to, with the flags and mode of open(2); closed on exec.
    [[nodiscard]] std::expected<FileDescriptor, int> open(int flags, mode_t mode);

private:
    /// A thing that was looked at, without following it.
    struct Seen {
        FileDescriptor thing; ///< of the kind that O_PATH gives
        mode_t mode;
    };

    [[nodiscard]] std::string takeComponent();
    [[nodiscard]] std::expected<Seen, int> look(const std::string& name) const;
    [[nodiscard]] std::expected<FileDescriptor, int> openCurrent(const std::string& name, int flags,
                                                                 mode_t mode) const;
    [[nodiscard]] std::expected<void, int> walkOn(const std::string& name, int flags);
    [[nodiscard]] std::expected<void, int> countLink();
    [[nodiscard]] std::expected<void, int> follow(const FileDescriptor& link);
    /// The last component. \returns no descriptor when it turned out to be a link, which `rest_` now leads
    /// through
    [[nodiscard]] std::expected<FileDescriptor, int> finish(const std::string& name, int flags, mode_t mode);

    FolderPath folders_;
    std::string rest_; ///< what is still to be walked from the current folder
    int linksFollowed_ = 0;
};
