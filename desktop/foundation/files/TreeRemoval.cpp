#include "files/TreeRemoval.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace {

std::expected<void, int> remove(const TreeEntry& entry, int flags) {
    if (unlinkat(entry.folder, entry.name.c_str(), flags) != 0)
        return std::unexpected(errno);
    return {};
}

} // namespace

std::expected<void, int> TreeRemoval::visit(const TreeEntry& entry) {
    return remove(entry, 0);
}

std::expected<bool, int> TreeRemoval::enter(const TreeEntry&) {
    return true;
}

std::expected<void, int> TreeRemoval::leave(const TreeEntry& folder, std::expected<void, int> reading) {
    auto removed = remove(folder, AT_REMOVEDIR); // which goes well for an empty folder that cannot be read
    return removed || reading ? removed : reading;
}
