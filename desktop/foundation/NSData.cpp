#include "Foundation/NSData.h"

#include "Device.h"
#include "RegularFile.h"

#include <fcntl.h>

#include <algorithm>
#include <span>

std::optional<NSData> NSData::dataWithContentsOfFile(std::string_view path) {
    auto file = RegularFile::open(Device::current().root(), path, O_RDONLY);
    if (!file)
        return std::nullopt;

    // The file may grow while it is read, and some tell no size at all.
    constexpr std::size_t leastRoom = 4096;
    NSData data;
    std::size_t size = 0;
    while (true) {
        const auto room = std::max(leastRoom, static_cast<std::size_t>(file->status().st_size) + 1 - size);
        data.bytes.resize(size + room);
        const auto count = file->read(std::span(data.bytes).subspan(size));
        if (!count)
            return std::nullopt;
        size += *count;
        if (size < data.bytes.size()) {
            data.bytes.resize(size);
            return data;
        }
    }
}
