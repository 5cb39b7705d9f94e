#include "keyboard/KeyboardLayout.h"

#include "RectGeometry.h"

#include <QString>
#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace {

using Action = KeyboardLayout::Action;
using Key = KeyboardLayout::Key;
using Page = KeyboardLayout::Page;

/// Some keys of a row, by their widths in columns.
struct Piece {
    double width = 0; ///< of each key, or of the room that is left free
    Action action = Action::Type;
    std::string texts; ///< a key for each character that is typed; else what the one key is called
    std::string word;  ///< what is written on the one key instead
};

using Row = std::vector<Piece>;

struct Rows {
    double columns; ///< that the width is divided into
    std::vector<Row> rows;
};

struct Measures {
    double height;
    double top; ///< of the first row
    double rowHeight;
    double margin; ///< at both sides
    KeyboardLayout::Gap gap;
};

constexpr Measures phone{336, 45, 54, 0, {3, 6}};
constexpr Measures pad{320, 55, 60.5, 3, {6, 5}};
constexpr auto phoneColumns = 10.0;
constexpr auto padColumns = 11.0;
constexpr auto widestPadReturn = 1.5;
constexpr auto besideLetters = 0.25; ///< between a phone's letters and the keys at their sides
/// On a phone, below the rows.
constexpr auto changeLanguageFrame = CGRect{{8, 265}, {62, 48}};

const Measures& measuresOf(Idiom idiom) {
    return idiom == Idiom::Phone ? phone : pad;
}

double count(std::string_view letters) {
    return static_cast<double>(
        QString::fromUtf8(letters.data(), static_cast<qsizetype>(letters.size())).size());
}

Piece gap(double width) {
    return {.width = width, .action = Action::Type, .texts = {}, .word = {}};
}

Piece typing(std::string_view texts, double width = 1) {
    return {.width = width, .action = Action::Type, .texts = std::string(texts), .word = {}};
}

Piece acting(Action action, double width, std::string_view name, std::string_view word = {}) {
    return {.width = width, .action = action, .texts = std::string(name), .word = std::string(word)};
}

Piece erase(double width) {
    return acting(Action::Delete, width, "delete");
}

Piece space(double width, const KeyboardLanguage& language) {
    return {.width = width, .action = Action::Type, .texts = " ", .word = std::string(language.spaceWord)};
}

Piece enter(double width, const KeyboardLanguage& language) {
    return acting(Action::Return, width, "return", language.returnWord);
}

Piece shift(double width) {
    return acting(Action::Shift, width, "shift");
}

Piece changeLanguage(double width) {
    return acting(Action::ChangeLanguage, width, "globe");
}

Piece showLetters(double width, const KeyboardLanguage& language) {
    return acting(Action::ShowLetters, width, "ABC", language.lettersWord);
}

Piece showNumbers(double width) {
    return acting(Action::ShowNumbers, width, "123");
}

Piece showSymbols(double width) {
    return acting(Action::ShowSymbols, width, "#+=");
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string all;
    for (const auto part : parts)
        all += part;
    return all;
}

/// The one that leads to another page, space and return.
Row phoneLastRow(const Piece& mode, double columns, const KeyboardLanguage& language) {
    auto first = mode;
    first.width = columns / 4;
    return {first, space(columns / 2, language), enter(columns / 4, language)};
}

Rows phoneLetterRows(const KeyboardLanguage& language) {
    const auto& [first, second, third] = language.letters;
    const auto columns = std::max({phoneColumns, count(first), count(second)});
    const auto side = (columns - count(third)) / 2;
    const auto besideSecond = (columns - count(second)) / 2;
    const auto last = phoneLastRow(showNumbers(0), columns, language);
    if (language.deletesInFirstRow) {
        const auto room = columns - count(first);
        return {columns,
                {{typing(first), gap(besideLetters), erase(room - besideLetters)},
                 {gap(besideSecond), typing(second)},
                 {gap(side), typing(third)},
                 last}};
    }
    if (!language.hasCapitals)
        return {
            columns,
            {{typing(first)}, {gap(besideSecond), typing(second)}, {typing(third), erase(2 * side)}, last}};
    return {columns,
            {{typing(first)},
             {gap(besideSecond), typing(second)},
             {shift(side - besideLetters), gap(besideLetters), typing(third), gap(besideLetters),
              erase(side - besideLetters)},
             last}};
}

Rows phoneRows(Page page, const KeyboardLanguage& language) {
    if (page == Page::Letters)
        return phoneLetterRows(language);
    const auto third = [&language](const Piece& other) {
        return Row{other, gap(besideLetters),
                   typing(joined({".", language.comma, language.questionMark, "!'"}), 1.4),
                   gap(besideLetters), erase(1.25)};
    };
    const auto last = phoneLastRow(showLetters(0, language), phoneColumns, language);
    if (page == Page::Numbers)
        return {phoneColumns,
                {{typing("1234567890")},
                 {typing(joined({"-/:", language.semicolon, "()", language.currency, "&@\""}))},
                 third(showSymbols(1.25)),
                 last}};
    return {phoneColumns,
            {{typing("[]{}#%^*+=")},
             {typing(joined({"_\\|~<>", language.otherCurrencies, "•"}))},
             third(showNumbers(1.25)),
             last}};
}

Row padLastRow(const Piece& mode, double columns, const KeyboardLanguage& language) {
    auto side = mode;
    side.width = 2.5;
    const auto middle = space(columns - 2 * side.width, language);
    if (!language.isOneOfSeveral)
        return {side, middle, side};
    auto first = mode;
    first.width = side.width / 2;
    return {first, changeLanguage(side.width / 2), middle, side};
}

/// The second row, which ends with return.
Row padReturnRow(std::string_view texts, double columns, const KeyboardLanguage& language) {
    const auto room = columns - count(texts);
    const auto width = std::min(room, widestPadReturn);
    return {gap(room - width), typing(texts), enter(width, language)};
}

Rows padLetterRows(const KeyboardLanguage& language) {
    const auto& [first, second, third] = language.letters;
    const auto thirdRow = joined({third, language.comma, "."});
    const auto columns = std::max({padColumns, count(first) + 1, count(second) + 1, count(thirdRow)});
    const auto side = (columns - count(thirdRow)) / 2;
    const auto beside = language.hasCapitals ? shift(side) : gap(side);
    return {columns,
            {{gap(columns - 1 - count(first)), typing(first), erase(1)},
             padReturnRow(second, columns, language),
             {beside, typing(thirdRow), beside},
             padLastRow(showNumbers(0), columns, language)}};
}

Rows padRows(Page page, const KeyboardLanguage& language) {
    if (page == Page::Letters)
        return padLetterRows(language);
    const auto last = padLastRow(showLetters(0, language), padColumns, language);
    const auto firstRow = Row{typing("1234567890"), erase(1)};
    if (page == Page::Numbers)
        return {padColumns,
                {firstRow,
                 padReturnRow(joined({"@#", language.currency, "&*()'\""}), padColumns, language),
                 {showSymbols(1), typing(joined({"%-+=/", language.semicolon, ":", language.comma, "."})),
                  showSymbols(1)},
                 last}};
    return {padColumns,
            {firstRow,
             padReturnRow(joined({language.otherCurrencies, "_^[]{}"}), padColumns, language),
             {showNumbers(1), typing(joined({"§|~…\\<>!", language.questionMark})), showNumbers(1)},
             last}};
}

/// Adds the keys of a piece from `x` on. \returns where they end
double addKeys(const Piece& piece, CGRect next, double column, std::vector<Key>& keys) {
    next.size.width = piece.width * column;
    if (piece.action != Action::Type) {
        keys.push_back({piece.action, piece.texts, next, piece.word});
        return CGRectGetMaxX(next);
    }
    const auto text = QString::fromStdString(piece.texts);
    for (const auto character : text) {
        keys.push_back({piece.action, QString(character).toStdString(), next, piece.word});
        next.origin.x += next.size.width;
    }
    return text.isEmpty() ? CGRectGetMaxX(next) : next.origin.x;
}

} // namespace

double KeyboardLayout::height(Idiom idiom) {
    return measuresOf(idiom).height;
}

KeyboardLayout::Gap KeyboardLayout::gap(Idiom idiom) {
    return measuresOf(idiom).gap;
}

std::vector<Key> KeyboardLayout::keys(Page page, Idiom idiom, double width,
                                      const KeyboardLanguage& language) {
    const auto& measures = measuresOf(idiom);
    const auto [columns, rows] = idiom == Idiom::Phone ? phoneRows(page, language) : padRows(page, language);
    const auto column = (width - 2 * measures.margin) / columns;
    std::vector<Key> keys;
    auto y = measures.top;
    for (const auto& row : rows) {
        auto x = measures.margin;
        for (const auto& piece : row)
            x = addKeys(piece, CGRectMake(x, y, 0, measures.rowHeight), column, keys);
        y += measures.rowHeight;
    }
    if (idiom == Idiom::Phone && language.isOneOfSeveral)
        keys.push_back({Action::ChangeLanguage, "globe", changeLanguageFrame, {}});
    return keys;
}
