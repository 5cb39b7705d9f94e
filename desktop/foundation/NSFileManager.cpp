#include "Foundation/NSFileManager.h"

#include "CreationNote.h"
#include "Device.h"
#include "Foundation/NSString.h"
#include "SystemTexts.h"
#include "files/FileErrors.h"
#include "files/FolderListing.h"
#include "files/RegularFile.h"
#include "files/TreeCopy.h"
#include "files/TreeListing.h"
#include "files/TreeRemoval.h"
#include "time/UnixTime.h"

#include <sys/stat.h>

#include <fcntl.h>

#include <cerrno>
#include <span>
#include <utility>

namespace {

constexpr mode_t newFolderMode = 0755;
constexpr mode_t newFileMode = 0644;

const DeviceRoot& root() {
    return Device::current().root();
}

Ref<NSError> errorOf(FileOperation operation, int error, std::string_view path,
                     std::string_view toFolder = {}) {
    return fileError(operation, error, path, toFolder,
                     [](std::string_view english) { return systemText(english); });
}

bool isFolder(std::string_view path) {
    return root().open(path, O_PATH | O_DIRECTORY).has_value();
}

std::expected<void, int> makeFolder(std::string_view path) {
    const auto place = root().locate(path);
    if (!place)
        return std::unexpected(place.error());
    const CreationNote note(path);
    if (mkdirat(place->folder.get(), place->name.c_str(), newFolderMode) != 0)
        return std::unexpected(errno);
    note.made();
    return {};
}

/// The same for a folder that may be there already.
std::expected<void, int> ensureFolder(std::string_view path) {
    auto made = makeFolder(path);
    if (!made && made.error() == EEXIST && isFolder(path))
        return {};
    return made;
}

std::expected<void, int> ensureFolderAndItsParents(std::string_view path) {
    for (auto end = path.find('/', 1); end < path.size(); end = path.find('/', end + 1)) {
        if (auto made = ensureFolder(path.substr(0, end)); !made)
            return made;
    }
    return ensureFolder(path);
}

std::expected<void, int> writeFile(std::string_view path, std::span<const std::byte> bytes) {
    const CreationNote note(path);
    auto file = RegularFile::open(root(), path, O_WRONLY | O_CREAT | O_TRUNC, newFileMode);
    if (!file)
        return std::unexpected(file.error());
    note.made();
    return file->write(bytes);
}

std::expected<void, int> removeTree(std::string_view path) {
    const auto place = root().locate(path);
    if (!place)
        return std::unexpected(place.error());
    if (place->name == ".") // the root, or a folder by its inside: it has no name there to be removed
        return std::unexpected(EINVAL);
    TreeRemoval removal;
    return TreeWalk(place->folder.get(), removal).walk(place->name);
}

std::expected<struct statx, int> statusOf(const DeviceRoot::Place& place) {
    struct statx status{};
    if (statx(place.folder.get(), place.name.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME,
              &status) != 0)
        return std::unexpected(errno);
    return status;
}

NSDate dateOf(const struct statx_timestamp& time) {
    constexpr double nanosecondsPerSecond = 1e9;
    return dateOfUnixTime(static_cast<double>(time.tv_sec) + time.tv_nsec / nanosecondsPerSecond);
}

NSFileType typeOf(mode_t mode) {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return NSFileType::Regular;
    case S_IFDIR:
        return NSFileType::Directory;
    case S_IFLNK:
        return NSFileType::SymbolicLink;
    default:
        return NSFileType::Other;
    }
}

NSDate creationDateOnHost(const struct statx& status) {
    const bool tellsItsCreation = (status.stx_mask & STATX_BTIME) != 0;
    return dateOf(tellsItsCreation ? status.stx_btime : status.stx_mtime);
}

} // namespace

NSFileManager& NSFileManager::defaultManager() {
    static NSFileManager manager;
    return manager;
}

bool NSFileManager::fileExistsAtPath(std::string_view path) const {
    return root().open(path, O_PATH).has_value();
}

Result<void> NSFileManager::createDirectoryAtPath(std::string_view path, bool withIntermediateDirectories) {
    const auto made = withIntermediateDirectories ? ensureFolderAndItsParents(path) : makeFolder(path);
    if (!made)
        return std::unexpected(errorOf(FileOperation::CreateDirectory, made.error(), path,
                                       stringByDeletingLastPathComponent(path)));
    return {};
}

bool NSFileManager::createFileAtPath(std::string_view path, const NSData& contents) {
    return writeFile(path, contents.bytes).has_value();
}

Result<void> NSFileManager::removeItemAtPath(std::string_view path) {
    if (const auto removed = removeTree(path); !removed)
        return std::unexpected(errorOf(FileOperation::Remove, removed.error(), path));
    return {};
}

Result<void> NSFileManager::copyItemAtPath(std::string_view path, std::string_view toPath) {
    const auto original = root().locate(path);
    const auto found = original ? statusOf(*original) : std::unexpected(original.error());
    if (!found)
        return std::unexpected(errorOf(FileOperation::Read, found.error(), path));

    const auto failure = [&](int error) {
        return std::unexpected(
            errorOf(FileOperation::Copy, error, path, stringByDeletingLastPathComponent(toPath)));
    };
    const auto target = root().locate(toPath);
    if (!target)
        return failure(target.error());
    const CreationNote note(toPath);
    TreeCopy copy(target->folder.get(), target->name);
    if (const auto copied = TreeWalk(original->folder.get(), copy).walk(original->name); !copied)
        return failure(copied.error());
    note.made();
    return {};
}

Result<std::vector<std::string>> NSFileManager::contentsOfDirectoryAtPath(std::string_view path) const {
    const auto folder = root().open(path, O_PATH | O_DIRECTORY);
    auto names = folder ? namesInFolder(folder->get()) : std::unexpected(folder.error());
    if (!names)
        return std::unexpected(errorOf(FileOperation::List, names.error(), path));
    return std::move(*names);
}

std::vector<std::string> NSFileManager::enumeratorAtPath(std::string_view path) const {
    const auto folder = root().open(path, O_PATH | O_DIRECTORY);
    if (!folder)
        return {};
    TreeListing listing;
    // A folder that goes away meanwhile ends the listing; what was found till then is the answer.
    [[maybe_unused]] const auto walked = TreeWalk(folder->get(), listing).walk(".");
    return std::move(listing.paths());
}

Result<NSFileAttributes> NSFileManager::attributesOfItemAtPath(std::string_view path) const {
    const auto place = root().locate(path);
    const auto status = place ? statusOf(*place) : std::unexpected(place.error());
    if (!status)
        return std::unexpected(errorOf(FileOperation::Read, status.error(), path));
    const auto noted = CreationNote::of(*place);
    return NSFileAttributes{.fileType = typeOf(status->stx_mode),
                            .fileSize = status->stx_size,
                            .fileCreationDate = noted ? *noted : creationDateOnHost(*status)};
}

std::vector<Ref<NSURL>> NSFileManager::URLsForDirectory(NSSearchPathDirectory directory) const {
    std::vector<Ref<NSURL>> urls;
    for (const auto& path : NSSearchPathForDirectoriesInDomains(directory))
        urls.push_back(NSURL::fileURLWithPath(path));
    return urls;
}

std::vector<std::string> NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory) {
    switch (directory) {
    case NSSearchPathDirectory::DocumentDirectory:
        return {Device::documentsPath};
    }
    return {};
}

std::string NSTemporaryDirectory() {
    return std::string(Device::temporaryPath) + "/";
}
