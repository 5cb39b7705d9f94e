#include "files/TreeListing.h"

std::expected<void, int> TreeListing::visit(const TreeEntry& entry) {
    paths_.push_back(prefix_ + entry.name);
    return {};
}

std::expected<bool, int> TreeListing::enter(const TreeEntry& folder) {
    const bool isFirst = prefixes_.empty();
    prefixes_.push_back(prefix_.size());
    if (!isFirst) {
        paths_.push_back(prefix_ + folder.name);
        prefix_ += folder.name + "/";
    }
    return true;
}

std::expected<void, int> TreeListing::leave(const TreeEntry&, std::expected<void, int>) {
    prefix_.resize(prefixes_.back());
    prefixes_.pop_back();
    return {};
}
