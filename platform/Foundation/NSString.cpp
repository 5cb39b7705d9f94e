#include "Foundation/NSString.h"

#include <cstddef>
#include <cstdint>

namespace {

/// The bytes of the UTF-8 sequence that starts the text, or 0 when none does.
std::size_t sequenceLength(std::string_view text) {
    const auto byteAt = [&](std::size_t index) { return static_cast<std::uint8_t>(text[index]); };
    const auto continues = [&](std::size_t index, std::uint8_t low = 0x80, std::uint8_t high = 0xBF) {
        return index < text.size() && byteAt(index) >= low && byteAt(index) <= high;
    };
    const auto lead = byteAt(0);
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const std::uint8_t low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong form
        const std::uint8_t high = lead == 0xED ? 0x9F : 0xBF; // no surrogate
        return continues(1, low, high) && continues(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const std::uint8_t low = lead == 0xF0 ? 0x90 : 0x80;  // no overlong form
        const std::uint8_t high = lead == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
        return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

std::string_view withoutTrailingSlashes(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return path;
}

std::string_view componentAtEndOf(std::string_view path) {
    path = withoutTrailingSlashes(path);
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

std::string_view extensionOf(std::string_view path) {
    const auto component = componentAtEndOf(path);
    const auto dot = component.rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return {};
    const auto extension = component.substr(dot + 1);
    return extension.contains(' ') ? std::string_view() : extension;
}

bool mayStandInUrlPath(char character) {
    constexpr std::string_view marks = "!$&'()*+,-./:=@_~";
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || marks.contains(character);
}

} // namespace

bool isValidUTF8(std::string_view text) {
    while (!text.empty()) {
        const auto length = sequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::optional<std::string> stringWithUTF8String(const char* text) {
    if (text == nullptr || !isValidUTF8(text))
        return std::nullopt;
    return text;
}

std::string stringByAppendingPathComponent(std::string_view path, std::string_view component) {
    while (component.starts_with('/'))
        component.remove_prefix(1);
    const auto base = withoutTrailingSlashes(path);
    if (component.empty())
        return std::string(base);
    std::string joined(base);
    if (!joined.empty() && !joined.ends_with('/'))
        joined += '/';
    joined += withoutTrailingSlashes(component);
    return joined;
}

std::string stringByDeletingLastPathComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    const auto slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return {};
    return std::string(withoutTrailingSlashes(path.substr(0, slash == 0 ? 1 : slash)));
}

std::string lastPathComponent(std::string_view path) {
    return std::string(componentAtEndOf(path));
}

std::string pathExtension(std::string_view path) {
    return std::string(extensionOf(path));
}

std::string stringByDeletingPathExtension(std::string_view path) {
    const auto extension = extensionOf(path);
    path = withoutTrailingSlashes(path);
    if (!extension.empty())
        path.remove_suffix(extension.size() + 1);
    return std::string(path);
}

std::string stringByAddingPercentEncodingWithURLPathAllowedCharacters(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr unsigned bitsPerDigit = 4;
    constexpr unsigned lastDigit = 0xF;
    std::string encoded;
    for (const char character : text) {
        if (mayStandInUrlPath(character)) {
            encoded += character;
            continue;
        }
        const auto byte = static_cast<std::uint8_t>(character);
        encoded += '%';
        encoded += digits[byte >> bitsPerDigit];
        encoded += digits[byte & lastDigit];
    }
    return encoded;
}

std::vector<std::string> componentsSeparatedByString(std::string_view text, std::string_view separator) {
    std::vector<std::string> components;
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        components.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    components.emplace_back(text);
    return components;
}
