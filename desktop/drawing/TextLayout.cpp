#include "TextLayout.h"

#include "FontFaces.h"
#include "KnownTexts.h"
#include "PaintedTexts.h"
#include "PainterBands.h"
#include "PixelComponents.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double roundingError = 1e-6; ///< of a sum of line heights or a place, in pixels

/// Rectangles that touch become one.
std::vector<QRectF> joined(std::vector<QRectF> rects) {
    constexpr double gap = 0.1; // points; less is a rounding error
    std::ranges::sort(rects, {}, [](const QRectF& rect) { return std::pair(rect.y(), rect.x()); });
    std::vector<QRectF> result;
    for (const auto& rect : rects) {
        const auto follows = !result.empty() && std::abs(result.back().y() - rect.y()) < gap &&
                             rect.x() - result.back().right() < gap;
        if (follows)
            result.back().setRight(std::max(result.back().right(), rect.right()));
        else
            result.push_back(rect);
    }
    return result;
}

/// Of a character, in a line.
struct Sides {
    double left = 0;
    double right = 0;
};

/// By the glyphs of the characters from `first` to `last`.
Sides glyphSides(const QTextLine& line, int first, int last) {
    Sides sides{std::numeric_limits<double>::infinity(), 0};
    for (const auto& run : line.glyphRuns(first, last - first + 1)) {
        const auto advances = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes());
        for (qsizetype index = 0; index < advances.size(); ++index) {
            sides.left = std::min(sides.left, run.positions()[index].x());
            sides.right = std::max(sides.right, run.positions()[index].x() + advances[index].x());
        }
    }
    return sides.left < sides.right ? sides : Sides();
}

/// Those of the painter's device that a rectangle covers, whatever of them is to be painted: where a picture
/// begins decides about the last digits of the places in it.
QRect pixelsIn(const QPainter& painter, const QRectF& rect) {
    const QRectF device(0, 0, painter.device()->width(), painter.device()->height());
    return (painter.deviceTransform().mapRect(rect) & device).toAlignedRect();
}

/// How many times as finely letters are painted before they are brought to the painter's pixels. The
/// rasteriser's curves are made of few straight lines, so that letters of few pixels would be thinner than
/// their outlines. What is shown smaller than it is, is moving or blurred.
int finenessOf(const QTransform& toPixels) {
    constexpr auto fineScale = 3.0; // pixels per point
    const auto scale = std::sqrt(std::abs(toPixels.determinant()));
    return scale >= 1 && scale < 2 ? static_cast<int>(std::ceil(fineScale / scale)) : 1;
}

} // namespace

TextLayout::TextLayout(std::string_view text, const FontStyle& style, const TextLayoutOptions& options)
    : style_(style),
      unit_(FontFaces::unit(style)),
      options_(options),
      text_(KnownTexts::shared().lines(text, style,
                                       {.width = std::max(0.0, options.maximumWidth),
                                        .lines = options.maximumLines,
                                        .endsWithEllipsis = options.endsWithEllipsis})) {
    options_.maximumWidth = std::max(0.0, options_.maximumWidth);
}

QSizeF TextLayout::size() const {
    double width = 0;
    for (const auto& line : lines())
        width = std::max(width, lineWidth(line));
    const double scale = options_.pixelScale;
    const double height = static_cast<double>(lines().size()) * style_.lineHeight();
    return {std::ceil(width * scale) / scale, std::ceil(height * scale - roundingError) / scale};
}

double TextLayout::baseline(std::size_t line) const {
    return static_cast<double>(line) * style_.lineHeight() + style_.ascent();
}

double TextLayout::topWithin(double height) const {
    const double scale = options_.pixelScale;
    return std::floor((height - size().height()) / 2 * scale) / scale;
}

QRectF TextLayout::lineRect(std::size_t line) const {
    const auto& shown = lines()[line];
    return {left(shown), static_cast<double>(line) * style_.lineHeight(), lineWidth(shown),
            style_.lineHeight()};
}

QRectF TextLayout::caretRect(std::size_t index) const {
    auto position = text_->text().position(index);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, string());
    finder.setPosition(position);
    if (!finder.isAtBoundary())
        position = finder.toPreviousBoundary();
    const auto number = lineOf(position);
    const auto& line = lines()[number];
    const auto within = static_cast<int>(std::min(position, line.end) - line.offset);
    const double x = left(line) + line.textLine().cursorToX(within) * unit_;
    return {x, static_cast<double>(number) * style_.lineHeight(), 0, style_.lineHeight()};
}

std::size_t TextLayout::indexAt(QPointF point) const {
    const auto last = static_cast<double>(lines().size() - 1);
    const auto number = static_cast<std::size_t>(std::clamp(point.y() / style_.lineHeight(), 0.0, last));
    const auto& line = lines()[number];
    const auto shown = line.textLine();
    const double x = (point.x() - left(line)) / unit_;
    // Qt's own search goes wrong around characters that are drawn as several glyphs.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, string());
    finder.setPosition(line.offset + shown.textStart());
    auto nearest = finder.position();
    double least = std::numeric_limits<double>::infinity();
    for (auto position = nearest; position >= 0 && position <= line.end; position = finder.toNextBoundary()) {
        const double distance = std::abs(shown.cursorToX(static_cast<int>(position - line.offset)) - x);
        if (distance < least && lineOf(position) == number) {
            nearest = position;
            least = distance;
        }
    }
    return text_->text().byteIndex(nearest);
}

std::vector<QRectF> TextLayout::rangeRects(std::size_t begin, std::size_t end) const {
    std::vector<QRectF> characters;
    const auto last = text_->text().position(end);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, string());
    finder.setPosition(text_->text().position(begin));
    for (auto from = finder.position(); from < last; from = finder.position()) {
        const auto next = finder.toNextBoundary();
        if (next < 0)
            break;
        if (from < lines()[lineOf(from)].end)
            characters.push_back(characterRect(from, next));
    }
    return joined(std::move(characters));
}

QRectF TextLayout::characterRect(qsizetype begin, qsizetype end) const {
    const auto number = lineOf(begin);
    const auto& line = lines()[number];
    const auto shown = line.textLine();
    const auto first = static_cast<int>(begin - line.offset);
    const auto last = static_cast<int>(end - 1 - line.offset);
    const auto [least, most] =
        std::minmax({shown.cursorToX(first), shown.cursorToX(first, QTextLine::Trailing),
                     shown.cursorToX(last, QTextLine::Trailing)});
    // Where directions meet, Qt has one place for both sides of a character.
    const auto sides = most > least ? Sides{least, most} : glyphSides(shown, first, last);
    return {left(line) + sides.left * unit_, static_cast<double>(number) * style_.lineHeight(),
            (sides.right - sides.left) * unit_, style_.lineHeight()};
}

void TextLayout::paint(QPainter& painter, QPointF origin, const QColor& color) const {
    const auto pixels = pixelsIn(painter, inkRect().translated(origin));
    if (pixels.isEmpty())
        return;
    const auto toPicture = QTransform::fromTranslate(origin.x(), origin.y()) * painter.deviceTransform() *
                           QTransform::fromTranslate(-pixels.x(), -pixels.y());
    const PaintedTexts::Key key{.lines = text_,
                                .alignment = options_.alignment,
                                .width = boxWidth(),
                                .toPicture = toPicture,
                                .size = pixels.size()};
    const auto coverage =
        PaintedTexts::shared().coverage(key, [&] { return letters(toPicture, pixels.size(), Qt::black); });
    const auto image =
        coverage.isNull() ? letters(toPicture, pixels.size(), color) : PaintedTexts::colored(coverage, color);
    painter.save();
    painter.resetTransform();
    const auto pixel = 1 / painter.device()->devicePixelRatioF();
    painter.scale(pixel, pixel);
    PainterBands::draw(painter, pixels.topLeft(), image);
    painter.restore();
}

QImage TextLayout::letters(const QTransform& toPicture, QSize size, const QColor& color) const {
    const auto fineness = finenessOf(toPicture);
    QImage image(size * fineness, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        // The first line stands on whole pixels, as the rasteriser has it on its own ones.
        const auto line = toPicture.map(QPointF(0, baseline(0))).y();
        const auto down = fineness > 1 ? std::floor(line + 0.5 + roundingError) - line : 0;
        painter.setTransform(toPicture * QTransform::fromTranslate(0, down) *
                             QTransform::fromScale(fineness, fineness));
        paintLines(painter, color);
    }
    return fineness > 1 ? PixelComponents::reduced(image, size).toImage() : image;
}

void TextLayout::paintLines(QPainter& painter, const QColor& color) const {
    painter.setPen(color);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(unit_, unit_);
    for (std::size_t number = 0; number < lines().size(); ++number) {
        const auto line = lines()[number].textLine();
        line.draw(&painter,
                  QPointF(left(lines()[number]), baseline(number)) / unit_ - QPointF(0, line.ascent()));
    }
}

QRectF TextLayout::inkRect() const {
    QRectF rect;
    for (std::size_t number = 0; number < lines().size(); ++number)
        rect |= lineRect(number);
    const auto beyond = style_.size / 2; // letters with marks above or below, and slanted ones
    return rect.adjusted(-beyond, -beyond, beyond, beyond);
}

double TextLayout::lineWidth(const TextLines::Line& line) const {
    return std::min(line.textLine().naturalTextWidth() * unit_, options_.maximumWidth);
}

double TextLayout::boxWidth() const {
    return std::isinf(options_.maximumWidth) ? size().width() : options_.maximumWidth;
}

double TextLayout::left(const TextLines::Line& line) const {
    const double free = boxWidth() - lineWidth(line);
    switch (options_.alignment) {
    case HorizontalAlignment::Left:
        return 0;
    case HorizontalAlignment::Center:
        return free / 2;
    case HorizontalAlignment::Right:
        return free;
    }
    return 0;
}

std::size_t TextLayout::lineOf(qsizetype position) const {
    const auto startsBehind = [&](const TextLines::Line& line) {
        return line.offset + line.textLine().textStart() > position;
    };
    const auto behind = std::ranges::find_if(lines(), startsBehind);
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - lines().begin() - 1, 0));
}
