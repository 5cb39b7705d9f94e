#pragma once

#include "files/TreeWalk.h"

#include <string>
#include <vector>

/// Lists what it comes by: the paths of everything below the walk's first folder, relative to that. What a
/// folder that cannot be read holds is left out.
class TreeListing final : public TreeVisitor {
public:
    std::expected<void, int> visit(const TreeEntry& entry) override;
    std::expected<bool, int> enter(const TreeEntry& folder) override;
    std::expected<void, int> leave(const TreeEntry& folder, std::expected<void, int> reading) override;

    /// The paths so far, a folder's before those of what it holds.
    [[nodiscard]] std::vector<std::string>& paths() { return paths_; }

private:
    std::vector<std::string> paths_;
    std::string prefix_;                ///< the path of the folder that the walk is in, with "/" at its end
    std::vector<std::size_t> prefixes_; ///< the lengths of `prefix_` in the folders above
};
