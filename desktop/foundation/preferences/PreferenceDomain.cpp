#include "preferences/PreferenceDomain.h"

#include "Foundation/NSLog.h"

#include <utility>

namespace {

bool canNameAFile(std::string_view name) {
    constexpr std::string_view separators("/\0", 2);
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(separators) == std::string_view::npos;
}

} // namespace

PreferenceDomain::PreferenceDomain(std::shared_ptr<const DeviceRoot> root, std::string_view name)
    : name_(name) {
    if (canNameAFile(name))
        file_.emplace(std::move(root), name);
}

std::optional<PropertyList> PreferenceDomain::value(std::string_view key) {
    const std::scoped_lock lock(mutex_);
    return changes_.valueIn(lastingContent(), key);
}

PropertyList::Dictionary PreferenceDomain::values() {
    const std::scoped_lock lock(mutex_);
    auto result = lastingContent();
    changes_.applyTo(result);
    return result;
}

void PreferenceDomain::set(std::string_view key, const PropertyList& value) {
    const std::scoped_lock lock(mutex_);
    changes_.set(key, value);
}

void PreferenceDomain::remove(std::string_view key) {
    const std::scoped_lock lock(mutex_);
    changes_.remove(key);
}

void PreferenceDomain::removeAll() {
    const std::scoped_lock lock(mutex_);
    changes_.removeAll();
}

bool PreferenceDomain::synchronize() {
    const std::scoped_lock lock(mutex_);
    if (changes_.isEmpty())
        return true;
    if (!file_)
        NSLog("The preferences of %@ cannot be written: the name cannot be that of a file", name_);
    if (!file_ || !file_->makeLasting(changes_))
        return false;
    changes_ = {};
    return true;
}

const PropertyList::Dictionary& PreferenceDomain::lastingContent() {
    static const PropertyList::Dictionary nothing;
    return file_ ? file_->content() : nothing;
}
