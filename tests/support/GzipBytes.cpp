#include "GzipBytes.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr std::string_view memberHeader("\x1F\x8B\x08\0\0\0\0\0\0\xFF", 10);
constexpr std::size_t longestBlock = 0xFFFF;

std::string littleEndian(std::uint32_t number, int bytes) {
    std::string text;
    for (auto byte = 0; byte < bytes; ++byte)
        text += static_cast<char>((number >> (8 * byte)) & 0xFFU);
    return text;
}

std::uint32_t checksumOf(std::string_view bytes) {
    constexpr std::uint32_t polynomial = 0xEDB88320;
    std::uint32_t remainder = ~0U;
    for (const char byte : bytes) {
        remainder ^= static_cast<unsigned char>(byte);
        for (auto bit = 0; bit < 8; ++bit)
            remainder = (remainder >> 1U) ^ ((remainder & 1U) != 0 ? polynomial : 0);
    }
    return ~remainder;
}

std::string storedBlock(std::string_view bytes, bool isLast) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    return std::string(1, isLast ? '\1' : '\0') + littleEndian(length, 2) + littleEndian(~length, 2) +
           std::string(bytes);
}

} // namespace

std::string gzipped(std::string_view bytes) {
    std::string member(memberHeader);
    auto left = bytes;
    do {
        const auto block = left.substr(0, longestBlock);
        left.remove_prefix(block.size());
        member += storedBlock(block, left.empty());
    } while (!left.empty());
    return member + littleEndian(checksumOf(bytes), 4) +
           littleEndian(static_cast<std::uint32_t>(bytes.size()), 4);
}
