#include "Foundation/NSDictionary.h"

#include "AtomicFile.h"
#include "Device.h"
#include "HostFile.h"
#include "PropertyListBudget.h"
#include "PropertyListCoding.h"

#include <fcntl.h>

#include <utility>

std::optional<PropertyList::Dictionary> dictionaryWithContentsOfFile(std::string_view path) {
    const auto file = Device::current().root().open(path, O_RDONLY | O_NONBLOCK);
    const auto bytes =
        file ? readRegularFile(*file, PropertyListBudget::maximumFileSize) : std::unexpected(file.error());
    auto value = bytes ? decodePropertyList(*bytes) : std::nullopt;
    auto* const dictionary = value ? value->getIf<PropertyList::Dictionary>() : nullptr;
    if (dictionary == nullptr)
        return std::nullopt;
    return std::move(*dictionary);
}

bool writeToFileAtomically(const PropertyList::Dictionary& dictionary, std::string_view path) {
    const auto bytes = encodePropertyList(dictionary, PropertyListFormat::XML);
    const auto place = bytes ? Device::current().root().locate(path) : std::unexpected(0);
    return place && AtomicFile::replace(place->folder, place->name, *bytes);
}
