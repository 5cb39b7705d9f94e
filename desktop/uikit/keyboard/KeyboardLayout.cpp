#include "keyboard/KeyboardLayout.h"

#include <QString>
#include <span>
#include <string_view>

namespace {

using Action = KeyboardLayout::Action;
using Key = KeyboardLayout::Key;
using Page = KeyboardLayout::Page;

/// Some keys of a row, by their widths in parts of a row.
struct Piece {
    double width = 0; ///< of each key, or of the room that is left free
    Action action = Action::Type;
    std::string_view texts; ///< a key for each character that is typed; else what is written on the one key
};

using Row = std::vector<Piece>;

struct Measures {
    double height;
    double top; ///< of the first row
    double rowHeight;
    double margin; ///< at both sides
    double parts;  ///< that a row's width has
    KeyboardLayout::Gap gap;
};

constexpr Measures phone{336, 45, 54, 0, 10, {3, 6}};
constexpr Measures pad{320, 55, 60.5, 3, 11, {6, 5}};

const Measures& measuresOf(Idiom idiom) {
    return idiom == Idiom::Phone ? phone : pad;
}

Piece gap(double width) {
    return {width, Action::Type, ""};
}

std::vector<Row> phoneRows(Page page) {
    const Piece erase{1.25, Action::Delete, "delete"};
    const auto last = [](const Piece& mode) {
        return Row{mode, {5, Action::Type, " "}, {2.5, Action::Return, "return"}};
    };
    const Piece numbers{2.5, Action::ShowNumbers, "123"};
    const Piece letters{2.5, Action::ShowLetters, "ABC"};
    if (page == Page::Letters)
        return {{{1, Action::Type, "qwertyuiop"}},
                {gap(0.5), {1, Action::Type, "asdfghjkl"}},
                {{1.25, Action::Shift, "shift"}, gap(0.25), {1, Action::Type, "zxcvbnm"}, gap(0.25), erase},
                last(numbers)};
    const auto third = [&erase](const Piece& other) {
        return Row{other, gap(0.25), {1.4, Action::Type, ".,?!'"}, gap(0.25), erase};
    };
    if (page == Page::Numbers)
        return {{{1, Action::Type, "1234567890"}},
                {{1, Action::Type, "-/:;()$&@\""}},
                third({1.25, Action::ShowSymbols, "#+="}),
                last(letters)};
    return {{{1, Action::Type, "[]{}#%^*+="}},
            {{1, Action::Type, "_\\|~<>€£¥•"}},
            third({1.25, Action::ShowNumbers, "123"}),
            last(letters)};
}

std::vector<Row> padRows(Page page) {
    const Piece erase{1, Action::Delete, "delete"};
    const Piece enter{1.5, Action::Return, "return"};
    const auto last = [](const Piece& mode) { return Row{mode, {6, Action::Type, " "}, mode}; };
    const auto around = [](const Piece& side, std::string_view texts) {
        return Row{side, {1, Action::Type, texts}, side};
    };
    if (page == Page::Letters)
        return {{{1, Action::Type, "qwertyuiop"}, erase},
                {gap(0.5), {1, Action::Type, "asdfghjkl"}, enter},
                around({1, Action::Shift, "shift"}, "zxcvbnm,."),
                last({2.5, Action::ShowNumbers, "123"})};
    if (page == Page::Numbers)
        return {{{1, Action::Type, "1234567890"}, erase},
                {gap(0.5), {1, Action::Type, "@#$&*()'\""}, enter},
                around({1, Action::ShowSymbols, "#+="}, "%-+=/;:,."),
                last({2.5, Action::ShowLetters, "ABC"})};
    return {{{1, Action::Type, "1234567890"}, erase},
            {gap(0.5), {1, Action::Type, "€£¥_^[]{}"}, enter},
            around({1, Action::ShowNumbers, "123"}, "§|~…\\<>!?"),
            last({2.5, Action::ShowLetters, "ABC"})};
}

/// Adds the keys of a piece from `x` on. \returns where they end
double addKeys(const Piece& piece, CGRect next, double part, std::vector<Key>& keys) {
    next.size.width = piece.width * part;
    const auto text = QString::fromUtf8(piece.texts.data(), static_cast<qsizetype>(piece.texts.size()));
    if (piece.action != Action::Type) {
        keys.push_back({piece.action, text.toStdString(), next});
        return CGRectGetMaxX(next);
    }
    for (const auto character : text) {
        keys.push_back({piece.action, QString(character).toStdString(), next});
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

std::vector<Key> KeyboardLayout::keys(Page page, Idiom idiom, double width) {
    const auto& measures = measuresOf(idiom);
    const auto part = (width - 2 * measures.margin) / measures.parts;
    std::vector<Key> keys;
    auto y = measures.top;
    for (const auto& row : idiom == Idiom::Phone ? phoneRows(page) : padRows(page)) {
        auto x = measures.margin;
        for (const auto& piece : row)
            x = addKeys(piece, CGRectMake(x, y, 0, measures.rowHeight), part, keys);
        y += measures.rowHeight;
    }
    return keys;
}
