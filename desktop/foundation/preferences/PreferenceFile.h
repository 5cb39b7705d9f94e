#pragma once

#include "Foundation/PropertyList.h"
#include "files/DeviceRoot.h"
#include "files/RegularFile.h"
#include "preferences/PreferenceChanges.h"

#include <sys/stat.h>

#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The file of one preference domain. Made by the domain, under whose mutex it is used.
class PreferenceFile {
public:
    PreferenceFile(std::shared_ptr<const DeviceRoot> root, std::string_view domainName);

    /// What the file holds now; empty when there is none, and, with a log line for each such file, when it is
    /// damaged or no file. It is read only when it is another than last time.
    [[nodiscard]] const PropertyList::Dictionary& content();

    /// Makes the changes to what the file holds by then, in one step, without losing what other processes
    /// change. A damaged file is kept aside. \returns false, with a log line, when the file stays as it was
    bool makeLasting(const PreferenceChanges& changes);

private:
    enum class Condition { Sound, Damaged, Unusable };

    /// What tells one content from another.
    struct Identity {
        explicit Identity(const struct stat& status);
        friend bool operator==(const Identity&, const Identity&) = default;

        dev_t device;
        ino_t inode;
        off_t size;
        std::int64_t modified; ///< nanoseconds
    };

    struct Complaint {
        friend bool operator==(const Complaint&, const Complaint&) = default;

        std::string reason;
        std::optional<Identity> identity;
    };

    void refresh();
    void refreshWithoutFile(int error);
    void load(RegularFile& file);
    void become(Condition condition, std::string_view reason);
    [[nodiscard]] std::expected<void, std::string> tryToMakeLasting(const PreferenceChanges& changes);

    std::shared_ptr<const DeviceRoot> root_;
    std::string domainName_;
    std::string fileName_;
    std::optional<RegularFile> file_; ///< open while it is the last one read, so that no other gets its inode
    std::optional<Identity> identity_;
    std::int64_t changed_ =
        0; ///< when it last was, in nanoseconds; also by what leaves the content as it was
    Condition condition_ = Condition::Sound;
    PropertyList::Dictionary content_;
    Complaint lastComplaint_;
};
