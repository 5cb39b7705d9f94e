#pragma once

#include "texts/StringTable.h"

/// Cuts the text of a string table into its tokens. Made by the parser of `StringTable` for one text, which
/// outlives it.
class StringTableLexer {
public:
    enum class Kind { Text, Equals, Semicolon, End, Unknown };

    struct Token {
        Kind kind;
        std::string text; ///< of `Kind::Text`, quotes and escapes undone
        std::size_t line; ///< where it begins
    };

    /// \param source valid UTF-8
    explicit StringTableLexer(std::string_view source) : rest_(source) {}

    /// The next token after white space and comments; at the end of the text, always `Kind::End`.
    [[nodiscard]] std::expected<Token, StringTable::Damage> next();

private:
    using Damage = StringTable::Damage;
    template <class T>
    using Expected = std::expected<T, Damage>;

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    /// The text's next bytes, which are passed.
    std::string_view take(std::size_t length);
    void skipLine();
    Expected<void> skipComment();
    Expected<void> skipBlanks();

    std::string word();
    Expected<std::string> quoted(char quote);
    /// What follows a backslash. A character without a meaning stands for itself.
    Expected<void> appendEscaped(std::string& text);
    Expected<char32_t> unicodeEscaped();
    /// One UTF-16 unit, from the "U" on.
    Expected<char32_t> unit();
    /// A character of ISO 8859-1, from its first digit on.
    Expected<char32_t> octalEscaped();

    std::string_view rest_;
    std::size_t line_ = 1;
};
