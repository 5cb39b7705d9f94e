#pragma once

#include "FontStyle.h"
#include "TextLines.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QTransform>
#include <cstddef>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

class QPainter;

enum class HorizontalAlignment { Left, Center, Right };

struct TextLayoutOptions {
    double maximumWidth = std::numeric_limits<double>::infinity(); ///< in points
    std::size_t maximumLines = 0;                                  ///< 0 is without limit
    HorizontalAlignment alignment = HorizontalAlignment::Left;
    bool endsWithEllipsis = true; ///< when there is more text; else it just ends
    double pixelScale = 1;        ///< pixels in a point; sizes are whole pixels
};

/// A text in one style, broken into lines as the platform's labels break it. Wraps between words, within a
/// word only where it does not fit a line alone; a line feed starts a new line. The last line that may be
/// shown ends with an ellipsis when there is more text, unless told otherwise. Its owner makes another when
/// text, style or room change. Positions are points from the layout's upper left corner, indexes are bytes of
/// the UTF-8 text and stand before a character as a reader counts them (a grapheme cluster) or at the end.
class TextLayout {
public:
    TextLayout(std::string_view text, const FontStyle& style, const TextLayoutOptions& options = {});

    /// The widest line by all lines, up to whole pixels. An empty text is one line high and has no width.
    [[nodiscard]] QSizeF size() const;

    [[nodiscard]] std::size_t lineCount() const { return lines().size(); }

    /// Whether there is text that is not shown.
    [[nodiscard]] bool isTruncated() const { return text_->isTruncated(); }

    /// From the top to a line's baseline.
    [[nodiscard]] double baseline(std::size_t line) const;

    /// Where it starts to be in the middle of a height, at a whole pixel: what stands beside another text in
    /// the same height has the same baseline. Negative when it is higher.
    [[nodiscard]] double topWithin(double height) const;

    /// A line's ink and side bearings by its full height. Lines are aligned within the maximum width, or
    /// within the width of `size` where that has no limit.
    [[nodiscard]] QRectF lineRect(std::size_t line) const;

    /// Where a caret before the character at an index stands: no width, the line's height.
    [[nodiscard]] QRectF caretRect(std::size_t index) const;

    /// The index whose caret is nearest to a point.
    [[nodiscard]] std::size_t indexAt(QPointF point) const;

    /// What the characters from one index up to another take up, from left to right on each line: one
    /// rectangle of the line's height for all that stand side by side. Those that are cut off are left out.
    [[nodiscard]] std::vector<QRectF> rangeRects(std::size_t begin, std::size_t end) const;

    /// Covers as much of each pixel as the letters do, on every background: on an opaque one Qt would blend
    /// letters as if for another gamma, thinner in black and heavier in white.
    /// \param origin where the layout's upper left corner is painted
    void paint(QPainter& painter, QPointF origin, const QColor& color) const;

private:
    [[nodiscard]] const std::vector<TextLines::Line>& lines() const { return text_->lines(); }

    [[nodiscard]] const QString& string() const { return text_->text().string(); }

    [[nodiscard]] double lineWidth(const TextLines::Line& line) const;
    [[nodiscard]] double boxWidth() const;
    [[nodiscard]] double left(const TextLines::Line& line) const;
    [[nodiscard]] std::size_t lineOf(qsizetype position) const;
    /// On nothing, in a picture of that size. \param toPicture from points
    [[nodiscard]] QImage letters(const QTransform& toPicture, QSize size, const QColor& color) const;
    void paintLines(QPainter& painter, const QColor& color) const;
    /// What letters may reach.
    [[nodiscard]] QRectF inkRect() const;
    [[nodiscard]] QRectF characterRect(qsizetype begin, qsizetype end) const;

    FontStyle style_;
    double unit_; ///< of Qt's layouts, in points
    TextLayoutOptions options_;
    std::shared_ptr<const TextLines> text_;
};
