#include "PngFile.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

std::string pngFile(int width, int height, QColor color) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}
