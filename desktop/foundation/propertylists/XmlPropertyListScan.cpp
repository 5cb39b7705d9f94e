#include "propertylists/XmlPropertyListScan.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <memory>
#include <string>

namespace {

constexpr std::string_view spaces = " \t\r\n";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(spaces);
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

template <class Number>
bool isNumberOfType(std::string_view text) {
    Number number{};
    const auto* const end = std::to_address(text.end());
    const auto [rest, error] = std::from_chars(std::to_address(text.begin()), end, number);
    return error == std::errc() && rest == end;
}

bool isInteger(std::string_view text) {
    text = trimmed(text);
    const auto digits = text.substr(text.starts_with('-') ? 1 : 0);
    if (digits.size() > 1 && digits.starts_with('0'))
        return false; // libplist would take it as octal
    return isNumberOfType<std::int64_t>(text) || isNumberOfType<std::uint64_t>(text);
}

bool isReal(std::string_view text) {
    text = trimmed(text);
    constexpr std::array<std::string_view, 7> names{"nan",       "inf",       "+inf",    "-inf",
                                                    "+infinity", "-infinity", "infinity"};
    return std::ranges::find(names, text) != names.end() ||
           (text.find_first_not_of("0123456789+-.eE") == std::string_view::npos &&
            isNumberOfType<double>(text));
}

/// "2001-01-01T00:00:00Z", the year with any number of digits that libplist writes.
bool isDate(std::string_view text) {
    text = trimmed(text);
    constexpr std::string_view pattern = "-00-00T00:00:00Z";
    const auto yearSize = text.find('-');
    if (yearSize == 0 || yearSize > 4 || text.size() != yearSize + pattern.size())
        return false;
    const auto afterYear = text.substr(yearSize);
    for (std::size_t i = 0; i < pattern.size(); ++i)
        if (pattern[i] == '0' ? !isDigit(afterYear[i]) : pattern[i] != afterYear[i])
            return false;
    const auto isWithin = [&](std::size_t position, std::string_view low, std::string_view high) {
        const auto number = afterYear.substr(position, 2);
        return number >= low && number <= high;
    };
    return std::ranges::all_of(text.substr(0, yearSize), isDigit) && isWithin(1, "01", "12") &&
           isWithin(4, "01", "31") && isWithin(7, "00", "23") && isWithin(10, "00", "59") &&
           isWithin(13, "00", "59");
}

bool isBase64(std::string_view text) {
    std::size_t count = 0;
    std::size_t padding = 0;
    for (const char character : text) {
        if (spaces.contains(character))
            continue;
        const bool isLetter = (character >= 'A' && character <= 'Z') ||
                              (character >= 'a' && character <= 'z') || isDigit(character) ||
                              character == '+' || character == '/';
        if (character == '=' ? ++padding > 2 : !isLetter || padding > 0)
            return false;
        ++count;
    }
    return count % 4 == 0;
}

bool isText(std::string_view) {
    return true;
}

/// The elements that hold text and nothing else, and what makes their content sound.
struct Leaf {
    std::string_view name;
    bool (*isSoundContent)(std::string_view);
};

constexpr std::array<Leaf, 6> leaves{{{"key", isText},
                                      {"string", isText},
                                      {"integer", isInteger},
                                      {"real", isReal},
                                      {"date", isDate},
                                      {"data", isBase64}}};

} // namespace

bool XmlPropertyListScan::isSound() {
    if (rest_.size() > PropertyListBudget::maximumFileSize || rest_.contains('\0'))
        return false;
    if (!skipMiscellany() || !skip("<plist"))
        return false;
    const auto attributes = rest_.substr(0, rest_.find('>'));
    const bool isWellFormed = attributes.empty() || spaces.contains(attributes.front());
    if (!isWellFormed || attributes.contains('<') || attributes.ends_with('/') || !skipPast(">"))
        return false;
    return scanValue() && skipMiscellany() && closeNext("plist") && skipMiscellany() && rest_.empty();
}

bool XmlPropertyListScan::scanValue() {
    bool isFirst = true;
    while (isFirst || !open_.empty()) {
        if (!skipMiscellany())
            return false;
        const auto tag = nextTag();
        if (!tag || !(isFirst ? scanTop(*tag) : scanInside(*tag)))
            return false;
        isFirst = false;
    }
    return true;
}

bool XmlPropertyListScan::scanTop(const Tag& tag) {
    return tag.name != "key" && scanElement(tag);
}

bool XmlPropertyListScan::scanInside(const Tag& tag) {
    if (tag.closes)
        return closeCollection(tag);
    auto& collection = open_.back();
    if (collection.isDictionary) {
        if ((tag.name == "key") == collection.hasKey)
            return false;
        collection.hasKey = !collection.hasKey;
    } else if (tag.name == "key") {
        return false;
    }
    return scanElement(tag);
}

bool XmlPropertyListScan::scanElement(const Tag& tag) {
    if (tag.closes || !budget_.take(PropertyListBudget::weightOfValue))
        return false;
    if (tag.name == "array" || tag.name == "dict")
        return openCollection(tag);
    if (tag.name == "true" || tag.name == "false")
        return scanBoolean(tag);
    const auto* const leaf = std::ranges::find(leaves, tag.name, &Leaf::name);
    if (leaf == leaves.end())
        return false;
    const auto content = tag.isEmpty ? std::string_view() : contentUntilEnd(tag.name);
    return content && leaf->isSoundContent(*content);
}

bool XmlPropertyListScan::scanBoolean(const Tag& tag) {
    return tag.isEmpty || closeNext(tag.name);
}

bool XmlPropertyListScan::openCollection(const Tag& tag) {
    if (open_.size() == PropertyListBudget::maximumNesting)
        return false;
    if (!tag.isEmpty)
        open_.push_back({.isDictionary = tag.name == "dict"});
    return true;
}

bool XmlPropertyListScan::closeCollection(const Tag& tag) {
    const auto collection = open_.back();
    open_.pop_back();
    return !collection.hasKey && tag.name == (collection.isDictionary ? "dict" : "array");
}

bool XmlPropertyListScan::closeNext(std::string_view name) {
    return skip("</" + std::string(name)) && (skipSpace(), skip(">"));
}

std::optional<XmlPropertyListScan::Tag> XmlPropertyListScan::nextTag() {
    if (!skip("<"))
        return std::nullopt;
    Tag tag;
    tag.closes = skip("/");
    const auto end = rest_.find_first_of(" \t\r\n/>");
    tag.name = rest_.substr(0, end);
    rest_.remove_prefix(tag.name.size());
    skipSpace();
    tag.isEmpty = !tag.closes && skip("/");
    if (!skip(">"))
        return std::nullopt;
    return tag;
}

std::optional<std::string_view> XmlPropertyListScan::contentUntilEnd(std::string_view name) {
    const auto start = rest_;
    while (true) {
        const auto markup = rest_.find('<');
        if (markup == std::string_view::npos)
            return std::nullopt;
        rest_.remove_prefix(markup);
        const auto content = start.substr(0, start.size() - rest_.size());
        if (skip("<![CDATA[")) {
            if (!skipPast("]]>"))
                return std::nullopt;
        } else {
            return closeNext(name) ? std::optional(content) : std::nullopt;
        }
    }
}

bool XmlPropertyListScan::skipMiscellany() {
    while (true) {
        skipSpace();
        if (skip("<?")) {
            if (!skipPast("?>"))
                return false;
        } else if (skip("<!--")) {
            if (!skipPast("-->"))
                return false;
        } else if (skip("<!DOCTYPE")) {
            const auto declaration = rest_.substr(0, rest_.find('>'));
            if (declaration.find_first_of("[<") != std::string_view::npos || !skipPast(">"))
                return false;
        } else {
            return true;
        }
    }
}

void XmlPropertyListScan::skipSpace() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(spaces), rest_.size()));
}

bool XmlPropertyListScan::skip(std::string_view prefix) {
    if (!rest_.starts_with(prefix))
        return false;
    rest_.remove_prefix(prefix.size());
    return true;
}

bool XmlPropertyListScan::skipPast(std::string_view end) {
    const auto position = rest_.find(end);
    if (position == std::string_view::npos)
        return false;
    rest_.remove_prefix(position + end.size());
    return true;
}
