#include "Foundation/NSData.h"

#include "Device.h"
#include "files/RegularFile.h"

#include <fcntl.h>

#include <limits>

std::optional<NSData> NSData::dataWithContentsOfFile(std::string_view path) {
    auto file = RegularFile::open(Device::current().root(), path, O_RDONLY);
    auto data = file ? file->readAll(std::numeric_limits<std::size_t>::max()) : std::unexpected(file.error());
    return data ? std::optional(std::move(*data)) : std::nullopt;
}
