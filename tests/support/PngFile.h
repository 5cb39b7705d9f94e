#pragma once

#include <QColor>
#include <string>

/// The bytes of a PNG file of so many pixels, all of one colour.
[[nodiscard]] std::string pngFile(int width, int height, QColor color = Qt::red);
