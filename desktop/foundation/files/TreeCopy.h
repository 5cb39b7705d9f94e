#pragma once

#include "files/TreeWalk.h"

#include <sys/types.h>

#include <string>
#include <utility>

/// Copies what it comes by to another folder: files, links as links, and folders, with modes and times.
/// Nothing is ever replaced. Made for one walk.
class TreeCopy final : public TreeVisitor {
public:
    /// \param toFolder the folder to copy to; borrowed
    /// \param toName what the copy of the walk's first thing is called there
    TreeCopy(int toFolder, std::string toName) : target_(toFolder), toName_(std::move(toName)) {}

    std::expected<void, int> visit(const TreeEntry& entry) override;

    /// Makes the folder's copy. A folder that is copied into itself does not get a copy of that copy.
    std::expected<bool, int> enter(const TreeEntry& folder) override;

    std::expected<void, int> leave(const TreeEntry& folder, std::expected<void, int> reading) override;

private:
    [[nodiscard]] const std::string& nameOfCopy(const TreeEntry& entry) const;
    [[nodiscard]] std::expected<void, int> copyFile(const TreeEntry& entry) const;
    [[nodiscard]] std::expected<void, int> copyLink(const TreeEntry& entry) const;
    [[nodiscard]] bool isTheCopyItself(const struct stat& folder) const;

    FolderPath target_; ///< to the copy of the folder that the walk is in
    std::string toName_;
    dev_t device_ = 0; ///< of the first folder's copy
    ino_t inode_ = 0;
};
