#include "DesktopImage.h"

#include "Foundation/NSData.h"
#include "Foundation/NSFileManager.h"
#include "KnownPictures.h"
#include "ObjectiveC/Class.h"
#include "PainterBands.h"
#include "symbols/SymbolLibrary.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

const Class classObject = Class::define<UIImage>("UIImage");

constexpr double symbolSize = 17; ///< of a symbol that nobody gave a size, in points

/// A picture that is shown at less than this part of its size is made smaller first, with all its pixels.
constexpr double smallestScaling = 0.5;

std::size_t extensionOf(std::string_view path) {
    const auto name = path.rfind('/') == std::string_view::npos ? 0 : path.rfind('/') + 1;
    const auto dot = path.rfind('.');
    return dot == std::string_view::npos || dot <= name ? path.size() : dot;
}

/// The pixels per point that a file's name tells.
double scaleOf(std::string_view path) {
    const auto stem = path.substr(0, extensionOf(path));
    if (stem.ends_with("@3x"))
        return 3;
    return stem.ends_with("@2x") ? 2 : 1;
}

bool namesScale(std::string_view path) {
    return scaleOf(path) > 1;
}

std::string withSuffix(std::string_view path, std::string_view suffix) {
    const auto dot = extensionOf(path);
    std::string name(path.substr(0, dot));
    name += suffix;
    name += path.substr(dot);
    return name;
}

std::array<std::string_view, 3> suffixesFor(double displayScale) {
    if (displayScale > 2)
        return {"@3x", "@2x", ""};
    if (displayScale > 1)
        return {"@2x", "@3x", ""};
    return {"", "@2x", "@3x"};
}

Ref<DesktopImage> pictureInFile(std::string_view path) {
    const auto data = NSData::dataWithContentsOfFile(path);
    if (!data)
        return nullptr;
    const auto picture = KnownPictures::shared().picture(*data);
    return picture.isNull() ? nullptr : make<DesktopImage>(picture, scaleOf(path));
}

QImage tinted(QImage picture, const QColor& color) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    for (const auto& band : PainterBands::of(picture.rect()))
        painter.fillRect(band, color);
    return picture;
}

void drawOutline(QPainter& painter, const QPainterPath& outline, CGSize size, const QRectF& rect,
                 const QColor& color) {
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / size.width, rect.height() / size.height);
    painter.fillPath(outline, color);
    painter.restore();
}

} // namespace

DesktopImage::DesktopImage(QImage picture, double scale)
    : content_(std::move(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied)),
      size_{std::get<QImage>(content_).width() / scale, std::get<QImage>(content_).height() / scale} {}

DesktopImage::DesktopImage(std::string symbolName, QPainterPath outline, CGSize size)
    : content_(std::move(outline)),
      symbolName_(std::move(symbolName)),
      size_(size) {}

DesktopImage::DesktopImage(Content content, std::string symbolName, CGSize size, UIImageRenderingMode mode)
    : content_(std::move(content)),
      symbolName_(std::move(symbolName)),
      size_(size),
      mode_(mode) {}

Ref<DesktopImage> DesktopImage::symbol(std::string_view name, double pointSize, SymbolWeight weight) {
    const auto symbol = SymbolLibrary::shared().symbol(name);
    if (!symbol)
        return nullptr;
    const auto size = symbol->size(pointSize, weight);
    return make<DesktopImage>(std::string(name), symbol->path(pointSize, weight),
                              CGSize{size.width(), size.height()});
}

Ref<DesktopImage> DesktopImage::named(std::string_view path, double displayScale) {
    for (const auto suffix : suffixesFor(displayScale)) {
        if (auto image = pictureInFile(withSuffix(path, suffix)))
            return image;
    }
    return nullptr;
}

Ref<DesktopImage> DesktopImage::withContentsOfFile(std::string_view path, double displayScale) {
    if (namesScale(path) || !NSFileManager::defaultManager().fileExistsAtPath(path))
        return pictureInFile(path);
    return named(path, displayScale);
}

CGSize DesktopImage::sizeOf(const UIImage& image) {
    return dynamic_cast<const DesktopImage&>(image).size();
}

bool DesktopImage::isTemplate() const {
    if (mode_ == UIImageRenderingMode::Automatic)
        return !symbolName_.empty();
    return mode_ == UIImageRenderingMode::AlwaysTemplate;
}

void DesktopImage::draw(QPainter& painter, const CGRect& rect, const ColorComponents& tint) const {
    const QRectF place(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
    if (const auto* const outline = std::get_if<QPainterPath>(&content_)) {
        drawOutline(painter, *outline, size_, place, isTemplate() ? tint.toQColor() : QColor(Qt::black));
        return;
    }
    const auto picture = reduced(painter, place);
    PainterBands::draw(painter, place, isTemplate() ? tinted(picture, tint.toQColor()) : picture);
}

QImage DesktopImage::reduced(const QPainter& painter, const QRectF& rect) const {
    const auto& picture = std::get<QImage>(content_);
    const auto shown = painter.deviceTransform().mapRect(rect).size();
    const auto factor = std::max(shown.width() / picture.width(), shown.height() / picture.height());
    if (factor >= smallestScaling)
        return picture;
    const auto size = shown.toSize().expandedTo({1, 1});
    if (reduced_.size() != size)
        reduced_ = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return reduced_;
}

Ref<UIImage> DesktopImage::imageWithRenderingMode(UIImageRenderingMode mode) const {
    auto image = adopt(new DesktopImage(content_, symbolName_, size_, mode));
    return image->init() ? image : nullptr;
}

Ref<UIImage> UIImage::systemImageNamed(std::string_view name) {
    return DesktopImage::symbol(name, symbolSize);
}
