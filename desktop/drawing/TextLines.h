#pragma once

#include "FontStyle.h"
#include "Utf16Text.h"

#include <QString>
#include <cstddef>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

class QTextLayout;
class QTextLine;

/// A text of one style that is broken into lines, whose glyphs are found and placed: what is dear of a text.
/// Never changed once it is made, so that whoever measures and paints the same text shares it.
class TextLines {
public:
    /// What there is for the lines.
    struct Room {
        double width = std::numeric_limits<double>::infinity(); ///< in points, not negative
        std::size_t lines = 0;                                  ///< at most; 0 is without limit
        bool endsWithEllipsis = true; ///< when there is more text; else it just ends

        bool operator==(const Room&) const = default;
    };

    struct Line {
        std::shared_ptr<QTextLayout> layout; ///< of the paragraph, or of the line alone when it is cut short
        int number = 0;                      ///< within the layout
        qsizetype offset = 0;                ///< of the layout's text within the whole
        qsizetype end = 0;                   ///< of what the line shows of the text

        [[nodiscard]] QTextLine textLine() const;
    };

    TextLines(std::string_view text, const FontStyle& style, const Room& room);

    [[nodiscard]] const Utf16Text& text() const { return text_; }

    /// At least one.
    [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }

    /// Whether there is text that is not shown.
    [[nodiscard]] bool isTruncated() const { return isTruncated_; }

    /// Whether they would come out the same in another room. \pre they were broken in one that is as wide or
    /// without limit, and nothing is cut off
    [[nodiscard]] bool suit(const Room& room) const;

private:
    void breakIntoLines();
    void breakParagraph(qsizetype begin, qsizetype end);

    /// Lays the last line out again as one that goes on to the end of its paragraph, and is cut.
    void cutLastLine(qsizetype paragraphEnd);

    [[nodiscard]] QString beginningWithRoomForEllipsis(const QString& text) const;
    [[nodiscard]] std::shared_ptr<QTextLayout> layoutOf(const QString& text) const;

    Utf16Text text_;
    FontStyle style_;
    double unit_; ///< of Qt's layouts, in points
    Room room_;
    std::vector<Line> lines_;
    bool isTruncated_ = false;
};
