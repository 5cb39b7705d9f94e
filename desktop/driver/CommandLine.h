#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

/// One command as it was written, taken apart from the left. Words stand between spaces and tabs. A word in
/// double quotes is a JSON text, so it may hold spaces and escapes; in a word without them every character
/// stands for itself. Looks at text that somebody else keeps.
class CommandLine {
public:
    struct Word {
        std::string text;
        bool quoted = false;

        friend bool operator==(const Word&, const Word&) = default;
    };

    /// \param line valid UTF-8
    explicit CommandLine(std::string_view line);

    /// Takes the next word away; nothing when none is left. The error says what is wrong with it.
    [[nodiscard]] std::expected<std::optional<Word>, std::string> next();

    /// What is left, without the white space before and after it.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    [[nodiscard]] std::expected<std::optional<Word>, std::string> nextQuoted();

    std::string_view rest_;
};
