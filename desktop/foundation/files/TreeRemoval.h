#pragma once

#include "files/TreeWalk.h"

/// Removes what it comes by: files and links, and folders after what they hold.
class TreeRemoval final : public TreeVisitor {
public:
    std::expected<void, int> visit(const TreeEntry& entry) override;
    std::expected<bool, int> enter(const TreeEntry& folder) override;
    std::expected<void, int> leave(const TreeEntry& folder, std::expected<void, int> reading) override;
};
