#include "documents/DocumentInbox.h"

#include "CreationNote.h"
#include "Device.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSString.h"
#include "Foundation/NSUUID.h"
#include "SystemTexts.h"
#include "files/AtomicFile.h"
#include "files/RegularFile.h"

#include <fcntl.h>

namespace {

constexpr auto inboxName = "com.apple.Preferences-Inbox";

std::string problem(const std::string& path, int error) {
    return systemText("“%@” could not be opened: %@.", {lastPathComponent(path), systemTextOfError(error)});
}

std::expected<void, int> copyInto(const std::string& folder, const std::string& name, RegularFile& file) {
    const auto opened = Device::current().root().open(folder, O_PATH | O_DIRECTORY);
    if (!opened)
        return std::unexpected(opened.error());
    const CreationNote note(stringByAppendingPathComponent(folder, name));
    auto copied = AtomicFile::makeCopy(*opened, name, file);
    if (copied)
        note.made();
    return copied;
}

std::expected<std::string, std::string> take(std::expected<RegularFile, int> file, const std::string& path) {
    if (!file)
        return std::unexpected(problem(path, file.error()));
    auto& files = NSFileManager::defaultManager();
    const auto folder = NSTemporaryDirectory() + inboxName + "/" + NSUUIDString();
    if (const auto made = files.createDirectoryAtPath(folder, true); !made)
        return std::unexpected(made.error()->localizedDescription());
    if (const auto copied = copyInto(folder, lastPathComponent(path), *file); !copied) {
        static_cast<void>(files.removeItemAtPath(folder));
        return std::unexpected(problem(path, copied.error()));
    }
    return stringByAppendingPathComponent(folder, lastPathComponent(path));
}

} // namespace

std::expected<std::string, std::string> DocumentInbox::takeHostFile(const std::string& hostPath) {
    return take(RegularFile::openOnHost(hostPath), hostPath);
}

std::expected<std::string, std::string> DocumentInbox::takeDeviceFile(const std::string& path) {
    return take(RegularFile::open(Device::current().root(), path, O_RDONLY), path);
}

void DocumentInbox::discard(const std::string& copy) {
    static_cast<void>(
        NSFileManager::defaultManager().removeItemAtPath(stringByDeletingLastPathComponent(copy)));
}
