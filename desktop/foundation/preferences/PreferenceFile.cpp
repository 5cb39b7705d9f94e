#include "preferences/PreferenceFile.h"

#include "Foundation/NSLog.h"
#include "preferences/PreferenceFolder.h"
#include "propertylists/PropertyListBudget.h"
#include "propertylists/PropertyListCoding.h"

#include <fcntl.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace {

std::string textOfError(int error) {
    return std::generic_category().message(error);
}

std::int64_t nanoseconds(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

PreferenceFile::Identity::Identity(const struct stat& status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      modified(nanoseconds(status.st_mtim)) {}

PreferenceFile::PreferenceFile(std::shared_ptr<const DeviceRoot> root, std::string_view domainName)
    : root_(std::move(root)),
      domainName_(domainName),
      fileName_(domainName_ + ".plist") {}

const PropertyList::Dictionary& PreferenceFile::content() {
    refresh();
    return content_;
}

bool PreferenceFile::makeLasting(const PreferenceChanges& changes) {
    const auto made = tryToMakeLasting(changes);
    if (!made)
        NSLog("The preferences of %@ could not be written: %@", domainName_, made.error());
    return made.has_value();
}

std::expected<void, std::string> PreferenceFile::tryToMakeLasting(const PreferenceChanges& changes) {
    const auto folder = PreferenceFolder::lock(*root_);
    if (!folder)
        return std::unexpected(textOfError(folder.error()));
    refresh();
    if (condition_ == Condition::Unusable)
        return std::unexpected("what stands in the file's place cannot be read");
    auto changed = content_;
    changes.applyTo(changed);
    const auto bytes = encodePropertyList(std::move(changed), PropertyListFormat::Binary);
    if (!bytes)
        return std::unexpected("they are too large");
    if (condition_ == Condition::Damaged && identity_) {
        if (const auto kept = folder->keepAside(fileName_, identity_->inode); !kept)
            return std::unexpected("the damaged file cannot be kept: " + textOfError(kept.error()));
    }
    if (const auto replaced = folder->replace(fileName_, *bytes); !replaced)
        return std::unexpected(textOfError(replaced.error()));
    return {};
}

void PreferenceFile::refresh() {
    auto file = RegularFile::open(*root_, std::string(PreferenceFolder::path) + '/' + fileName_, O_RDONLY);
    if (!file) {
        refreshWithoutFile(file.error());
        return;
    }
    const Identity identity(file->status());
    const auto changed = nanoseconds(file->status().st_ctim);
    if (identity == identity_ && changed == changed_)
        return;
    file_ = std::move(*file);
    identity_ = identity;
    changed_ = changed;
    load(*file_);
}

void PreferenceFile::refreshWithoutFile(int error) {
    file_.reset();
    identity_.reset();
    content_.clear();
    const bool isMissing = error == ENOENT || error == ENOTDIR;
    become(isMissing ? Condition::Sound : Condition::Unusable, isMissing ? "" : textOfError(error));
}

void PreferenceFile::load(RegularFile& file) {
    content_.clear();
    const auto data = file.readAll(PropertyListBudget::maximumFileSize);
    if (!data && data.error() != EFBIG) {
        become(Condition::Unusable, textOfError(data.error()));
        identity_.reset(); // to be tried again
        return;
    }
    auto value = data ? decodePropertyList(data->view()) : std::nullopt;
    auto* const dictionary = value ? value->getIf<PropertyList::Dictionary>() : nullptr;
    if (dictionary == nullptr) {
        become(Condition::Damaged, "the file is damaged");
        return;
    }
    content_ = std::move(*dictionary);
    become(Condition::Sound, "");
}

void PreferenceFile::become(Condition condition, std::string_view reason) {
    condition_ = condition;
    Complaint complaint{.reason = std::string(reason), .identity = identity_};
    if (!reason.empty() && complaint != lastComplaint_)
        NSLog("The preferences of %@ read as empty: %@", domainName_, complaint.reason);
    lastComplaint_ = std::move(complaint);
}
