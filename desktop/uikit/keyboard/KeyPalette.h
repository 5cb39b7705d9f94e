#pragma once

#include "Traits.h"

#include <QColor>

/// What the keys of the on-screen keyboard are painted with.
struct KeyPalette {
    QColor letterKey;
    QColor otherKey;
    QColor shadow;
    QColor text;

    [[nodiscard]] static KeyPalette forStyle(UserInterfaceStyle style);
};
