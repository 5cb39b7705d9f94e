#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Traits.h"
#include "keyboard/KeyboardLanguage.h"

#include <string>
#include <vector>

/// Where the keys of the on-screen keyboard are, and what they are for.
struct KeyboardLayout {
    enum class Page { Letters, Numbers, Symbols };

    enum class Action { Type, Shift, Delete, Return, ShowLetters, ShowNumbers, ShowSymbols, ChangeLanguage };

    struct Key {
        Action action = Action::Type;
        std::string text; ///< what it types, or else what it is called; letters are small
        CGRect frame;     ///< with half of the gaps around it, in points of the keyboard
        std::string word; ///< what is written on it when that is not its text
    };

    /// Between a key's frame and what is drawn of it.
    struct Gap {
        double across;
        double down;
    };

    /// How high the keyboard is, with what it leaves free above and below its keys.
    [[nodiscard]] static double height(Idiom idiom);

    [[nodiscard]] static Gap gap(Idiom idiom);

    /// \param width the screen's
    [[nodiscard]] static std::vector<Key> keys(Page page, Idiom idiom, double width,
                                               const KeyboardLanguage& language);
};
