#include "keyboard/KeyboardLanguage.h"

#include "texts/LanguageNames.h"

#include <algorithm>

namespace {

constexpr KeyboardLanguage english{.letters = {"qwertyuiop", "asdfghjkl", "zxcvbnm"}};

constexpr KeyboardLanguage german{.letters = {"qwertzuiopü", "asdfghjklöä", "yxcvbnm"},
                                  .currency = "€",
                                  .otherCurrencies = "$£¥",
                                  .spaceWord = "Leerzeichen",
                                  .returnWord = "Return"};

constexpr KeyboardLanguage arabic{.letters = {"ضصثقفغعهخحج", "شسيبلاتنمكط", "ذءؤرىةوزظد"},
                                  .hasCapitals = false,
                                  .comma = "،",
                                  .semicolon = "؛",
                                  .questionMark = "؟",
                                  .lettersWord = "أبج",
                                  .spaceWord = "مسافة",
                                  .returnWord = ""};

constexpr KeyboardLanguage hebrew{.letters = {"קראטוןםפ", "שדגכעיחלךף", "זסבהנמצתץ"},
                                  .hasCapitals = false,
                                  .deletesInFirstRow = true,
                                  .currency = "₪",
                                  .otherCurrencies = "$€£",
                                  .lettersWord = "אבג",
                                  .spaceWord = "רווח",
                                  .returnWord = ""};

const KeyboardLanguage& languageOf(const std::string& locale) {
    const auto names = languageNames(locale);
    const auto isIn = [&names](std::string_view name) {
        return std::ranges::find(names, name) != names.end();
    };
    if (isIn("de"))
        return german;
    if (isIn("ar"))
        return arabic;
    return isIn("he") ? hebrew : english;
}

} // namespace

std::vector<KeyboardLanguage> KeyboardLanguage::forLocale(const std::string& locale) {
    std::vector languages{languageOf(locale)};
    if (!languages.front().hasCapitals) {
        languages.push_back(english);
        for (auto& language : languages)
            language.isOneOfSeveral = true;
    }
    return languages;
}
