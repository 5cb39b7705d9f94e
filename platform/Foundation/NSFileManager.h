#pragma once

#include "Foundation/NSDate.h"
#include "Foundation/NSError.h"
#include "Foundation/NSURL.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What kind of thing a path names.
enum class NSFileType { Regular, Directory, SymbolicLink, Other };

/// What `attributesOfItemAtPath` tells.
struct NSFileAttributes {
    NSFileType fileType = NSFileType::Other;
    std::uint64_t fileSize = 0; ///< bytes
    NSDate fileCreationDate;
};

/// Which folder to search for. The number is the platform's.
enum class NSSearchPathDirectory : unsigned { DocumentDirectory = 9 };

/// Files and folders, by absolute device path. Errors are of `NSCocoaErrorDomain`, with the platform's codes,
/// texts for the user, and the `NSPOSIXErrorDomain` error underneath. Any thread.
class NSFileManager {
public:
    [[nodiscard]] static NSFileManager& defaultManager();

    /// Links are followed: a link that leads nowhere does not exist.
    [[nodiscard]] bool fileExistsAtPath(std::string_view path) const;

    /// Makes a folder; with intermediates its missing parents too, and then an existing folder is no failure.
    Result<void> createDirectoryAtPath(std::string_view path, bool withIntermediateDirectories);

    /// Makes or replaces a file with the given bytes. \returns whether that went well
    bool createFileAtPath(std::string_view path, const NSData& contents);

    /// Removes a file, a link (not what it leads to) or a folder with all that is in it.
    Result<void> removeItemAtPath(std::string_view path);

    /// Copies a file, a link as a link, or a whole folder, with modes and times. Fails when something is at
    /// `toPath` already. What was copied before a failure stays.
    Result<void> copyItemAtPath(std::string_view path, std::string_view toPath);

    /// The names in a folder, "." and ".." left out, in no particular order.
    [[nodiscard]] Result<std::vector<std::string>> contentsOfDirectoryAtPath(std::string_view path) const;

    /// The paths, relative to the folder, of everything below it at any depth: a folder before what it holds,
    /// otherwise in no particular order. Links are listed and not followed. Empty when there is no folder.
    [[nodiscard]] std::vector<std::string> enumeratorAtPath(std::string_view path) const;

    /// The attributes of the thing itself: for a link those of the link.
    [[nodiscard]] Result<NSFileAttributes> attributesOfItemAtPath(std::string_view path) const;

    /// The folders of that kind in the user's domain, the preferred one first. Its existence is not promised.
    [[nodiscard]] std::vector<Ref<NSURL>> URLsForDirectory(NSSearchPathDirectory directory) const;

private:
    NSFileManager() = default;
};

/// The folders of that kind in the user's domain, the preferred one first. Its existence is not promised.
[[nodiscard]] std::vector<std::string> NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory);

/// The folder for temporary files, which exists. Ends with "/".
[[nodiscard]] std::string NSTemporaryDirectory();
