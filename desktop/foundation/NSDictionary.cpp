#include "Foundation/NSDictionary.h"

#include "CreationNote.h"
#include "Device.h"
#include "files/AtomicFile.h"
#include "files/RegularFile.h"
#include "propertylists/PropertyListBudget.h"
#include "propertylists/PropertyListCoding.h"

#include <fcntl.h>

#include <utility>

std::optional<PropertyList::Dictionary> dictionaryWithContentsOfFile(std::string_view path) {
    auto file = RegularFile::open(Device::current().root(), path, O_RDONLY);
    const auto data =
        file ? file->readAll(PropertyListBudget::maximumFileSize) : std::unexpected(file.error());
    auto value = data ? decodePropertyList(data->view()) : std::nullopt;
    auto* const dictionary = value ? value->getIf<PropertyList::Dictionary>() : nullptr;
    if (dictionary == nullptr)
        return std::nullopt;
    return std::move(*dictionary);
}

bool writeToFileAtomically(const PropertyList::Dictionary& dictionary, std::string_view path) {
    const auto bytes = encodePropertyList(dictionary, PropertyListFormat::XML);
    if (!bytes)
        return false;
    const auto place = Device::current().root().locate(path);
    if (!place || !AtomicFile::replace(place->folder, place->name, *bytes))
        return false;
    CreationNote(path).replaced();
    return true;
}
