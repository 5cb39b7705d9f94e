#include "Ink.h"

#include <cmath>

QImage painted(const QSize& points, double scale, const std::function<void(QPainter&)>& draw) {
    const QSize pixels(static_cast<int>(std::ceil(points.width() * scale)),
                       static_cast<int>(std::ceil(points.height() * scale)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    return image;
}

QImage filled(const QPainterPath& shape, const QSize& points, double scale) {
    return painted(points, scale, [&](QPainter& painter) { painter.fillPath(shape, Qt::black); });
}

QRect inkOf(const QImage& image, int leastAlpha) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) >= leastAlpha)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

double alphaSum(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    }
    return sum;
}
