#include "Foundation/NSData.h"

#include <span>

namespace {

constexpr std::size_t bytesShownAtMost = 24;
constexpr std::size_t bytesShownAtTheStartOfMany = 16;
constexpr std::size_t bytesShownAtTheEndOfMany = 8;

void appendHex(std::string& text, std::span<const std::byte> bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i != 0 && i % 4 == 0)
            text += ' ';
        const auto value = std::to_integer<unsigned>(bytes[i]);
        text += digits[value >> 4U];
        text += digits[value & 0xFU];
    }
}

} // namespace

NSData NSData::dataWithBytes(std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {.bytes = {bytes.begin(), bytes.end()}};
}

std::string_view NSData::view() const {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::string NSData::description() const {
    std::string text = "{length = " + std::to_string(bytes.size()) + ", bytes = 0x";
    const std::span all(bytes);
    if (bytes.size() <= bytesShownAtMost) {
        appendHex(text, all);
    } else {
        appendHex(text, all.first(bytesShownAtTheStartOfMany));
        text += " ... ";
        appendHex(text, all.last(bytesShownAtTheEndOfMany));
    }
    return text + "}";
}
