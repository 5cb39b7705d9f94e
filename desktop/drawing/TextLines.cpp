#include "TextLines.h"

#include "FontFaces.h"

#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

namespace {

constexpr QChar ellipsis(0x2026);

/// Where Qt wants a width and there is none. It counts in 64ths with 32 bits.
constexpr double unlimited = 1e7;

/// By less than this a line that fits may not fit, since Qt counts in 64ths.
constexpr double fittingTolerance = 1.0 / 32;

bool endsParagraph(QChar character) {
    return character == '\n' || character == '\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

qsizetype paragraphEnd(const QString& text, qsizetype begin) {
    return std::find_if(text.begin() + begin, text.end(), endsParagraph) - text.begin();
}

/// The first position after the separator at a position, which is one of two units when it is CR LF.
qsizetype afterSeparator(const QString& text, qsizetype position) {
    const bool isPair = text[position] == '\r' && position + 1 < text.size() && text[position + 1] == '\n';
    return position + (isPair ? 2 : 1);
}

QTextOption optionFor(QTextOption::WrapMode wrapMode) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(wrapMode);
    return option;
}

/// Lays the first line out. \returns it
QTextLine layOutFirstLine(QTextLayout& layout, QTextOption::WrapMode wrapMode, double width) {
    layout.setTextOption(optionFor(wrapMode));
    layout.beginLayout();
    auto line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(width);
    layout.endLayout();
    return line;
}

/// As Arabic has.
bool hasJoinedLetters(const QString& text) {
    return std::ranges::any_of(text, [](QChar character) {
        const auto type = character.joiningType();
        return type == QChar::Joining_Dual || type == QChar::Joining_Right;
    });
}

QString withoutTrailingSpaces(QString text) {
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

} // namespace

QTextLine TextLines::Line::textLine() const {
    return layout->lineAt(number);
}

TextLines::TextLines(std::string_view text, const FontStyle& style, const Room& room)
    : text_(text),
      style_(style),
      unit_(FontFaces::unit(style)),
      room_(room) {
    breakIntoLines();
}

bool TextLines::suit(const Room& room) const {
    const auto fits = [this, &room](const Line& line) {
        const auto isWhole = line.end == 0 || !text_.string()[line.end - 1].isSpace();
        return isWhole && line.textLine().naturalTextWidth() + fittingTolerance <= room.width / unit_;
    };
    const auto areFewEnough = room.lines == 0 || lines_.size() <= room.lines;
    return areFewEnough && (room.width == room_.width || std::ranges::all_of(lines_, fits));
}

void TextLines::breakIntoLines() {
    const auto& text = text_.string();
    qsizetype begin = 0;
    while (!isTruncated_) {
        const auto end = paragraphEnd(text, begin);
        breakParagraph(begin, end);
        if (end == text.size())
            return;
        begin = afterSeparator(text, end);
    }
}

void TextLines::breakParagraph(qsizetype begin, qsizetype end) {
    const double width = room_.width / unit_;
    const bool wraps = width < unlimited;
    const auto layout = layoutOf(text_.string().mid(begin, end - begin));
    layout->setTextOption(optionFor(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap));
    layout->beginLayout();
    for (auto line = layout->createLine(); line.isValid() && !isTruncated_; line = layout->createLine()) {
        line.setLineWidth(wraps ? width : unlimited);
        const auto lineEnd = begin + line.textStart() + line.textLength();
        lines_.push_back({layout, line.lineNumber(), begin, lineEnd});
        isTruncated_ = lines_.size() == room_.lines && lineEnd < text_.string().size();
    }
    layout->endLayout();
    if (isTruncated_ && room_.endsWithEllipsis)
        cutLastLine(end);
}

void TextLines::cutLastLine(qsizetype paragraphEnd) {
    auto& line = lines_.back();
    const auto begin = line.offset + line.textLine().textStart();
    const auto text = beginningWithRoomForEllipsis(text_.string().mid(begin, paragraphEnd - begin));
    line.end = begin + text.size();
    line.layout = layoutOf(text + ellipsis);
    line.number = 0;
    line.offset = begin;
    layOutFirstLine(*line.layout, QTextOption::NoWrap, unlimited);
}

QString TextLines::beginningWithRoomForEllipsis(const QString& text) const {
    const auto sign = layoutOf(ellipsis);
    const double taken = layOutFirstLine(*sign, QTextOption::NoWrap, unlimited).naturalTextWidth();
    const double room = std::min(room_.width / unit_, unlimited) - taken;
    const auto layout = layoutOf(text);
    const auto line = layOutFirstLine(*layout, QTextOption::WrapAnywhere, std::max(0.0, room));
    if (!line.isValid() || line.naturalTextWidth() > room)
        return {};
    return withoutTrailingSpaces(text.left(line.textLength()));
}

std::shared_ptr<QTextLayout> TextLines::layoutOf(const QString& text) const {
    auto font = FontFaces::font(style_);
    if (hasJoinedLetters(text))
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0); // which would part them
    return std::make_shared<QTextLayout>(text, font);
}
