#include "propertylists/PlistScalar.h"

#include <cstddef>
#include <string>

namespace {

constexpr std::size_t headerSize = 8;

/// Bytes of the value that follows the marker.
std::size_t payloadSize(std::uint8_t marker) {
    return std::size_t{1} << (marker & 0xFU);
}

std::string bigEndian(std::uint64_t bits, std::size_t size) {
    std::string bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend() && bits != 0; ++byte, bits >>= 8U)
        *byte = static_cast<char>(bits & 0xFFU);
    return bytes;
}

} // namespace

PlistScalar PlistScalar::ofNode(plist_t node) {
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node, &bytes, &size);
    const auto byteAt = [&](std::size_t index) { return static_cast<std::uint8_t>(bytes[index]); };
    PlistScalar scalar{.marker = byteAt(headerSize), .bits = 0};
    for (std::size_t i = 1; i <= payloadSize(scalar.marker); ++i)
        scalar.bits = scalar.bits << 8U | byteAt(headerSize + i);
    plist_to_bin_free(bytes);
    return scalar;
}

PlistNode PlistScalar::makeNode() const {
    const std::string object = static_cast<char>(marker) + bigEndian(bits, payloadSize(marker));
    const std::string offsetTable(1, static_cast<char>(headerSize));
    const std::string unused(6, '\0');
    const std::string sizesOfOffsetAndReference = "\1\1";
    const std::string file = "bplist00" + object + offsetTable + unused + sizesOfOffsetAndReference +
                             bigEndian(1, 8) /* object */ + bigEndian(0, 8) /* is the first */ +
                             bigEndian(headerSize + object.size(), 8) /* where the table is */;
    plist_t node = nullptr;
    plist_from_bin(file.data(), static_cast<std::uint32_t>(file.size()), &node);
    return PlistNode(node);
}
