#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// What a language has on the keys of its keyboard.
struct KeyboardLanguage {
    std::array<std::string_view, 3> letters; ///< of each row, from the left; small where there are large ones
    bool hasCapitals = true;
    bool deletesInFirstRow = false; ///< of a phone's keyboard, whose last row else holds the key for that

    // In place of what other languages have among figures and signs.
    std::string_view comma = ",";
    std::string_view semicolon = ";";
    std::string_view questionMark = "?";
    std::string_view currency = "$";
    std::string_view otherCurrencies = "€£¥";

    // What is written on keys.
    std::string_view lettersWord = "ABC";
    std::string_view spaceWord = "space";
    std::string_view returnWord = "return"; ///< empty for a symbol

    bool isOneOfSeveral = false; ///< then a key leads to the next

    /// The keyboards of a device with that locale: its language's, and one for Latin letters where that has
    /// others. What is not known is written with English keys.
    [[nodiscard]] static std::vector<KeyboardLanguage> forLocale(const std::string& locale);
};
