#pragma once

#include <cstddef>
#include <expected>
#include <functional>
#include <map>
#include <string>
#include <string_view>

/// The texts of one ".strings" file, by key. All of them are valid UTF-8.
class StringTable {
public:
    using Texts = std::map<std::string, std::string, std::less<>>;

    /// Why bytes are no string table.
    struct Damage {
        std::size_t line; ///< of the file, from 1 on
        std::string expected;
    };

    /// A table without texts.
    StringTable() = default;

    /// Reads a file's bytes: `"key" = "text";` in UTF-8 or UTF-16, or a property list that is a dictionary,
    /// whose other values than texts are left out. Of texts with the same key the last one counts.
    [[nodiscard]] static std::expected<StringTable, Damage> parse(std::string_view bytes);

    [[nodiscard]] const Texts& texts() const { return texts_; }

private:
    explicit StringTable(Texts texts) : texts_(std::move(texts)) {}

    Texts texts_;
};
