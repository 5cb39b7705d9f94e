#include "keyboard/KeyPalette.h"

KeyPalette KeyPalette::forStyle(UserInterfaceStyle style) {
    if (style == UserInterfaceStyle::Dark)
        return {.letterKey = {107, 107, 107},
                .otherKey = {71, 71, 71},
                .shadow = {29, 29, 29},
                .text = Qt::white};
    return {
        .letterKey = Qt::white, .otherKey = {171, 176, 186}, .shadow = {137, 138, 141}, .text = Qt::black};
}
