#pragma once

#include <QColor>

/// A colour in sRGB, each component from 0 to 1, not multiplied by alpha.
struct ColorComponents {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const ColorComponents&) const = default;

    [[nodiscard]] QColor toQColor() const {
        return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue),
                                static_cast<float>(alpha));
    }
};
