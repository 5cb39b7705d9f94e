#include "DesktopURL.h"

#include "Foundation/NSString.h"
#include "ObjectiveC/Class.h"

#include <cctype>
#include <cstddef>
#include <string_view>

namespace {

const Class classObject = Class::define<DesktopURL>("NSURL");

constexpr std::string_view fileStart = "file://";
constexpr std::size_t escapeLength = 3; // "%41"

bool isHexDigit(char character) {
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

bool startsWithEscape(std::string_view text) {
    return text.size() >= escapeLength && text[0] == '%' && isHexDigit(text[1]) && isHexDigit(text[2]);
}

bool mayStandInUrl(char character) {
    constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=";
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || marks.contains(character);
}

bool isUrl(std::string_view text) {
    if (text.empty())
        return false;
    while (!text.empty()) {
        if (!startsWithEscape(text) && !mayStandInUrl(text.front()))
            return false;
        text.remove_prefix(startsWithEscape(text) ? escapeLength : 1);
    }
    return true;
}

std::string withoutEscapes(std::string_view text) {
    constexpr int hexadecimal = 16;
    std::string decoded;
    while (!text.empty()) {
        const bool isEscape = startsWithEscape(text);
        decoded += isEscape
                       ? static_cast<char>(std::stoi(std::string(text.substr(1, 2)), nullptr, hexadecimal))
                       : text.front();
        text.remove_prefix(isEscape ? escapeLength : 1);
    }
    return decoded;
}

/// What follows "scheme:", the whole text when there is no scheme.
std::string_view afterScheme(std::string_view text) {
    const auto end = text.find_first_of(":/?#");
    return end != std::string_view::npos && text[end] == ':' ? text.substr(end + 1) : text;
}

/// What follows "//host", if there is that.
std::string_view afterHost(std::string_view text) {
    constexpr std::string_view hostStart = "//";
    if (!text.starts_with(hostStart))
        return text;
    const auto path = text.find_first_of("/?#", hostStart.size());
    return path != std::string_view::npos ? text.substr(path) : std::string_view();
}

} // namespace

Ref<NSURL> NSURL::fileURLWithPath(std::string_view path) {
    return make<DesktopURL>(std::string(fileStart) +
                            stringByAddingPercentEncodingWithURLPathAllowedCharacters(path));
}

Ref<NSURL> NSURL::URLWithString(std::string_view text) {
    return isUrl(text) ? make<DesktopURL>(std::string(text)) : nullptr;
}

std::string DesktopURL::path() const {
    auto encoded = afterHost(afterScheme(text_));
    encoded = encoded.substr(0, encoded.find_first_of("?#"));
    while (encoded.size() > 1 && encoded.ends_with('/'))
        encoded.remove_suffix(1);
    return withoutEscapes(encoded);
}

std::string DesktopURL::lastPathComponent() const {
    return ::lastPathComponent(path());
}

std::string DesktopURL::pathExtension() const {
    return ::pathExtension(path());
}
