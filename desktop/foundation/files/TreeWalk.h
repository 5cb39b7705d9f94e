#pragma once

#include "files/FolderPath.h"

#include <sys/stat.h>

#include <expected>
#include <string>
#include <vector>

/// Something that a walk through a tree comes by.
struct TreeEntry {
    int folder; ///< the folder that holds it, open
    const std::string& name;
    const struct stat& status; ///< of the thing itself, a link's for a link
};

/// What is done on a walk through a tree. An error number that it answers ends the walk.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;

    /// A file, a link, or anything else that is no folder.
    virtual std::expected<void, int> visit(const TreeEntry& entry) = 0;

    /// A folder, before what it holds. \returns whether to walk through it, and call `leave` then
    virtual std::expected<bool, int> enter(const TreeEntry& folder) = 0;

    /// A folder, after what it holds.
    /// \param reading how it was read; if that failed nothing in it was visited
    virtual std::expected<void, int> leave(const TreeEntry& folder, std::expected<void, int> reading) = 0;
};

/// Walks through one thing of the host and everything below it, at any depth, without ever following a link,
/// whoever changes the tree meanwhile. Made for one walk.
class TreeWalk {
public:
    /// \param folder the folder that holds the thing; borrowed
    TreeWalk(int folder, TreeVisitor& visitor) : path_(folder), visitor_(visitor) {}

    /// \returns the first error, which ended the walk
    [[nodiscard]] std::expected<void, int> walk(const std::string& name);

private:
    /// A folder that the walk is in.
    struct Level {
        struct stat status;
        std::expected<void, int> reading;
        std::vector<std::string> names; ///< those still to come by
    };

    [[nodiscard]] std::expected<void, int> comeBy(const std::string& name);
    [[nodiscard]] std::expected<void, int> enter(const std::string& name, const struct stat& status);
    [[nodiscard]] std::expected<void, int> leave();

    FolderPath path_;
    TreeVisitor& visitor_;
    std::vector<Level> levels_;
};
