#include "EntryList.h"

#include "Device.h"
#include "Foundation/NSDictionary.h"
#include "Foundation/NSFileManager.h"
#include "Foundation/NSLog.h"
#include "Foundation/NSString.h"
#include "PreferenceBundle.h"

#include <unicode/coll.h>

#include <algorithm>
#include <expected>
#include <memory>
#include <utility>

namespace {

using Dictionary = PropertyList::Dictionary;

constexpr std::string_view extension = ".plist";

/// The text under the key; "" when there is none.
std::string textIn(const Dictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    const auto* const text = found == dictionary.end() ? nullptr : found->second.getIf<std::string>();
    return text == nullptr ? "" : *text;
}

template <class T>
const T* valueIn(const Dictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nullptr : found->second.getIf<T>();
}

std::string firstOf(std::string first, std::string second) {
    return first.empty() ? std::move(second) : std::move(first);
}

PaneEntry bundleEntry(std::string name, const Dictionary& row) {
    const auto bundle = textIn(row, "bundle");
    return {.name = name,
            .label = firstOf(textIn(row, "label"), std::move(name)),
            .folder = PreferenceBundle::pathOf(bundle),
            .icon = textIn(row, "icon"),
            .bundle = bundle,
            .detail = textIn(row, "detail"),
            .row = row};
}

/// An entry whose rows stand in the file itself; what `entry` says of the row counts before the list's title.
PaneEntry listEntry(std::string name, const Dictionary& row, const Dictionary& file) {
    return {.name = name,
            .label = firstOf(firstOf(textIn(row, "label"), textIn(file, "title")), std::move(name)),
            .folder = std::string(EntryList::folder),
            .icon = textIn(row, "icon"),
            .bundle = "",
            .detail = "",
            .row = row};
}

/// The entry that the file describes, or why it describes none.
std::expected<PaneEntry, const char*> entryIn(const std::string& name, const Dictionary& file) {
    const auto* const row = valueIn<Dictionary>(file, "entry");
    if (row != nullptr && !textIn(*row, "bundle").empty())
        return bundleEntry(name, *row);
    if (valueIn<PropertyList::Array>(file, "items") != nullptr)
        return listEntry(name, row == nullptr ? Dictionary() : *row, file);
    return std::unexpected(row == nullptr ? "it has neither an entry nor items"
                                          : "its entry names no bundle, and it has no items");
}

std::expected<PaneEntry, const char*> readEntry(const std::string& fileName) {
    const auto file =
        dictionaryWithContentsOfFile(stringByAppendingPathComponent(EntryList::folder, fileName));
    if (!file)
        return std::unexpected("it is no property list");
    return entryIn(fileName.substr(0, fileName.size() - extension.size()), *file);
}

/// By label as the user's language orders them; entries of one label by name.
void sort(std::vector<PaneEntry>& entries) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<const icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale(Device::current().locale().c_str()), status));
    std::ranges::sort(entries, [&](const PaneEntry& left, const PaneEntry& right) {
        UErrorCode ignored = U_ZERO_ERROR;
        const auto order = collator ? collator->compareUTF8(left.label, right.label, ignored) : UCOL_EQUAL;
        return order == UCOL_EQUAL ? left.name < right.name : order == UCOL_LESS;
    });
}

} // namespace

std::vector<PaneEntry> EntryList::read() {
    std::vector<PaneEntry> entries;
    const auto names = NSFileManager::defaultManager().contentsOfDirectoryAtPath(folder);
    for (const auto& name : names.value_or(std::vector<std::string>())) {
        if (!name.ends_with(extension) || name.starts_with('.'))
            continue;
        if (auto entry = readEntry(name))
            entries.push_back(std::move(*entry));
        else
            NSLog("The entry %@ is left out: %@.", name, entry.error());
    }
    sort(entries);
    return entries;
}

std::optional<PaneEntry> EntryList::find(std::string_view nameOrLabel) {
    const auto entries = read();
    for (const auto part : {&PaneEntry::name, &PaneEntry::label}) {
        const auto found = std::ranges::find(entries, nameOrLabel, part);
        if (found != entries.end())
            return *found;
    }
    return std::nullopt;
}
