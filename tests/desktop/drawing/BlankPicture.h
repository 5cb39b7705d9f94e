#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

/// A picture of pixels as they are painted in, all of one colour.
[[nodiscard]] inline QImage blank(QSize size, const QColor& color = Qt::transparent) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}
