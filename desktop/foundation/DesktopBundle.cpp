#include "DesktopBundle.h"

#include "Device.h"
#include "Foundation/NSData.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "texts/LanguageNames.h"

#include <fcntl.h>

#include <utility>

namespace {

/// Whether a name can be used as part of a path without leading elsewhere.
bool staysInItsFolder(std::string_view name) {
    return !name.contains('/') && !name.contains("..") && !name.contains('\0');
}

std::string developmentRegion(std::string_view bundlePath) {
    const auto info = dictionaryWithContentsOfFile(stringByAppendingPathComponent(bundlePath, "Info.plist"));
    if (!info)
        return "en";
    const auto found = info->find("CFBundleDevelopmentRegion");
    const auto* const region = found != info->end() ? found->second.getIf<std::string>() : nullptr;
    return region != nullptr && staysInItsFolder(*region) ? *region : "en";
}

StringTable parsed(const NSData& data, const std::string& path) {
    auto table = StringTable::parse(data.view());
    if (table)
        return std::move(*table);
    NSLog("%@:%@: the string table is damaged: expected %@", path, std::to_string(table.error().line),
          table.error().expected);
    return {};
}

} // namespace

Ref<NSBundle> NSBundle::mainBundle() {
    return Device::current().mainBundle();
}

Ref<DesktopBundle> DesktopBundle::withPath(std::string_view path) {
    if (!Device::current().root().open(path, O_PATH | O_DIRECTORY))
        return nullptr;
    return make<DesktopBundle>(path);
}

std::string DesktopBundle::localizedStringForKey(std::string_view key, std::optional<std::string> value,
                                                 std::optional<std::string> table) const {
    if (auto text = lookUp(key, table && !table->empty() ? *table : "Localizable"))
        return std::move(*text);
    return value && !value->empty() ? std::move(*value) : std::string(key);
}

std::optional<std::string> DesktopBundle::lookUp(std::string_view key, const std::string& table) const {
    const std::scoped_lock lock(mutex_);
    auto known = tables_.find(table);
    if (known == tables_.end())
        known = tables_.emplace(table, readTable(table)).first;
    const auto& texts = known->second.texts();
    const auto found = texts.find(key);
    return found != texts.end() ? std::optional(found->second) : std::nullopt;
}

StringTable DesktopBundle::readTable(const std::string& name) const {
    if (!staysInItsFolder(name))
        return {};
    for (const auto& folder : tableFolders()) {
        const auto path = stringByAppendingPathComponent(folder, name + ".strings");
        if (const auto data = NSData::dataWithContentsOfFile(path))
            return parsed(*data, path);
    }
    return {};
}

std::vector<std::string> DesktopBundle::tableFolders() const {
    auto languages = languageNames(Device::current().locale());
    languages.push_back(developmentRegion(path_));
    languages.emplace_back("Base");
    std::vector<std::string> folders;
    folders.reserve(languages.size() + 1);
    for (const auto& language : languages)
        folders.push_back(stringByAppendingPathComponent(path_, language + ".lproj"));
    folders.push_back(path_);
    return folders;
}
