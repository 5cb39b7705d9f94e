#include "texts/StringTableLexer.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <optional>
#include <utility>

namespace {

bool isWordCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || std::string_view("_.-$/:").contains(character);
}

bool isOctalDigit(char character) {
    return character >= '0' && character <= '7';
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool isSurrogate(char32_t unit) {
    return isHighSurrogate(unit) || isLowSurrogate(unit);
}

/// The number that all of the digits spell, in the base; nothing when they do not.
std::optional<unsigned> number(std::string_view digits, int base) {
    unsigned value = 0;
    const auto* const end = std::to_address(digits.end());
    const auto [stop, error] = std::from_chars(std::to_address(digits.begin()), end, value, base);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

void append(std::string& text, char32_t character) {
    icu::UnicodeString(static_cast<UChar32>(character)).toUTF8String(text);
}

StringTableLexer::Kind kindOfSign(char sign) {
    if (sign == '=')
        return StringTableLexer::Kind::Equals;
    return sign == ';' ? StringTableLexer::Kind::Semicolon : StringTableLexer::Kind::Unknown;
}

} // namespace

auto StringTableLexer::next() -> Expected<Token> {
    if (const auto skipped = skipBlanks(); !skipped)
        return std::unexpected(skipped.error());
    Token token{.kind = Kind::End, .text = {}, .line = line_};
    if (atEnd())
        return token;
    const char first = rest_.front();
    if (isWordCharacter(first)) {
        token.kind = Kind::Text;
        token.text = word();
        return token;
    }
    take(1);
    if (first != '"' && first != '\'') {
        token.kind = kindOfSign(first);
        return token;
    }
    auto text = quoted(first);
    if (!text)
        return std::unexpected(std::move(text.error()));
    token.kind = Kind::Text;
    token.text = std::move(*text);
    return token;
}

std::string_view StringTableLexer::take(std::size_t length) {
    const auto taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    line_ += static_cast<std::size_t>(std::ranges::count(taken, '\n'));
    return taken;
}

void StringTableLexer::skipLine() {
    take(rest_.find('\n'));
}

auto StringTableLexer::skipComment() -> Expected<void> {
    const auto firstLine = line_;
    const auto end = rest_.find("*/", 2);
    if (end == std::string_view::npos)
        return std::unexpected(Damage{firstLine, "\"*/\" at the end of the comment that begins here"});
    take(end + 2);
    return {};
}

auto StringTableLexer::skipBlanks() -> Expected<void> {
    for (;;) {
        take(std::min(rest_.find_first_not_of(" \t\n\v\f\r"), rest_.size()));
        if (rest_.starts_with("//")) {
            skipLine();
        } else if (rest_.starts_with("/*")) {
            if (auto skipped = skipComment(); !skipped)
                return skipped;
        } else {
            return {};
        }
    }
}

std::string StringTableLexer::word() {
    const auto* const end = std::ranges::find_if_not(rest_, isWordCharacter);
    return std::string(take(static_cast<std::size_t>(end - rest_.begin())));
}

auto StringTableLexer::quoted(char quote) -> Expected<std::string> {
    const auto firstLine = line_;
    const std::array ends{quote, '\\'};
    std::string text;
    for (;;) {
        text += take(rest_.find_first_of(std::string_view(ends.data(), ends.size())));
        if (atEnd())
            return std::unexpected(
                Damage{firstLine,
                       std::string("a closing ").append(1, quote).append(" for the text that begins here")});
        if (take(1).front() == quote)
            return text;
        if (auto appended = appendEscaped(text); !appended)
            return std::unexpected(std::move(appended.error()));
    }
}

auto StringTableLexer::appendEscaped(std::string& text) -> Expected<void> {
    constexpr std::string_view names = "ntrabfv";
    constexpr std::string_view meanings = "\n\t\r\a\b\f\v";
    const auto next = rest_.substr(0, 1);
    if (next == "U" || (!next.empty() && isOctalDigit(next.front()))) {
        const auto character = next == "U" ? unicodeEscaped() : octalEscaped();
        if (!character)
            return std::unexpected(character.error());
        append(text, *character);
        return {};
    }
    const auto name = next.empty() ? std::string_view::npos : names.find(next.front());
    text += name != std::string_view::npos ? meanings.substr(name, 1)
                                           : next; // of a longer sequence, the rest follows
    take(1);
    return {};
}

auto StringTableLexer::unicodeEscaped() -> Expected<char32_t> {
    const auto first = unit();
    if (!first || !isSurrogate(*first))
        return first;
    if (isHighSurrogate(*first) && rest_.starts_with("\\U")) {
        take(1);
        const auto second = unit();
        if (!second)
            return second;
        if (isLowSurrogate(*second))
            return 0x10000 + ((*first - 0xD800) << 10U) + (*second - 0xDC00);
    }
    return std::unexpected(Damage{line_, "both halves of a surrogate pair"});
}

auto StringTableLexer::unit() -> Expected<char32_t> {
    constexpr std::size_t digits = 4;
    const auto value = number(rest_.substr(1, digits), 16);
    if (!value || rest_.size() <= digits)
        return std::unexpected(Damage{line_, R"(four hexadecimal digits after "\U")"});
    take(1 + digits);
    return *value;
}

auto StringTableLexer::octalEscaped() -> Expected<char32_t> {
    const auto digits = rest_.substr(0, 3);
    const auto* const end = std::ranges::find_if_not(digits, isOctalDigit);
    const auto value = number(take(static_cast<std::size_t>(end - digits.begin())), 8);
    if (!value || *value > 0xFF)
        return std::unexpected(Damage{line_, R"(an octal number up to 377 after "\")"});
    return *value;
}
