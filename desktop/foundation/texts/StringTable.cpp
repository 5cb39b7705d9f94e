#include "texts/StringTable.h"

#include "propertylists/PropertyListCoding.h"
#include "texts/StringTableEncoding.h"
#include "texts/StringTableLexer.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Damage = StringTable::Damage;
using Texts = StringTable::Texts;
using Token = StringTableLexer::Token;
using Kind = StringTableLexer::Kind;

/// The part of the bytes that is a property list, if they begin as one.
std::optional<std::string_view> asPropertyList(std::string_view bytes) {
    if (bytes.starts_with("bplist"))
        return bytes;
    if (bytes.starts_with(utf8ByteOrderMark))
        bytes.remove_prefix(utf8ByteOrderMark.size());
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    constexpr std::array<std::string_view, 3> beginnings{"<?xml", "<!DOCTYPE plist", "<plist"};
    const bool isXML = std::ranges::any_of(beginnings, [&](auto start) { return bytes.starts_with(start); });
    return isXML ? std::optional(bytes) : std::nullopt;
}

std::expected<Texts, Damage> textsOfPropertyList(std::string_view bytes) {
    auto value = decodePropertyList(bytes);
    auto* const dictionary = value ? value->getIf<PropertyList::Dictionary>() : nullptr;
    if (dictionary == nullptr)
        return std::unexpected(Damage{1, "a property list whose value is a dictionary"});
    Texts texts;
    for (auto& [key, entry] : *dictionary) {
        if (auto* const text = entry.getIf<std::string>())
            texts.emplace(key, std::move(*text));
    }
    return texts;
}

/// Reads `key = text;` and `key;` one after the other.
class Parser {
public:
    explicit Parser(std::string_view source) : lexer_(source) {}

    std::expected<Texts, Damage> parse() {
        Texts texts;
        for (;;) {
            auto key = lexer_.next();
            if (key && key->kind == Kind::End)
                return texts;
            key = require(Kind::Text, std::move(key), "a key");
            auto text = key ? textFor(*key) : std::unexpected(key.error());
            if (!text)
                return std::unexpected(text.error());
            texts.insert_or_assign(std::move(key->text), std::move(*text));
        }
    }

private:
    using Next = std::expected<Token, Damage>;

    static Next require(Kind kind, Next token, const char* expected) {
        if (token && token->kind != kind)
            return std::unexpected(Damage{token->line, expected});
        return token;
    }

    /// What follows a key, up to and with the ";".
    std::expected<std::string, Damage> textFor(const Token& key) {
        auto token = lexer_.next();
        if (token && token->kind == Kind::Semicolon)
            return key.text;
        token = require(Kind::Equals, std::move(token), R"("=" or ";" after a key)");
        auto text = token ? require(Kind::Text, lexer_.next(), "a text after \"=\"") : std::move(token);
        const auto end = text ? require(Kind::Semicolon, lexer_.next(), "\";\" after a text") : text;
        if (!end)
            return std::unexpected(end.error());
        return std::move(text->text);
    }

    StringTableLexer lexer_;
};

std::expected<Texts, Damage> textsOfBytes(std::string_view bytes) {
    if (const auto propertyList = asPropertyList(bytes))
        return textsOfPropertyList(*propertyList);
    const auto source = decodeStringTable(bytes);
    if (!source)
        return std::unexpected(source.error());
    return Parser(*source).parse();
}

} // namespace

std::expected<StringTable, Damage> StringTable::parse(std::string_view bytes) {
    auto texts = textsOfBytes(bytes);
    if (!texts)
        return std::unexpected(std::move(texts.error()));
    return StringTable(std::move(*texts));
}
