#include "typing/EditedText.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

using BoundaryType = QTextBoundaryFinder::BoundaryType;

constexpr char32_t nextLine = 0x85;

bool breaksLine(char32_t character) {
    return character == nextLine || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator || (character >= U'\t' && character <= U'\r');
}

bool isWritten(char32_t character) {
    return QChar::category(character) != QChar::Other_Control && !QChar::isNonCharacter(character);
}

/// Without surrogates that stand alone.
std::u32string charactersOf(const QString& text) {
    std::u32string characters;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const auto unit = text[index];
        if (!unit.isSurrogate()) {
            characters += unit.unicode();
        } else if (unit.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate()) {
            characters += QChar::surrogateToUcs4(unit, text[index + 1]);
            ++index;
        }
    }
    return characters;
}

QString cleaned(QString text) {
    text.replace("\r\n", " ");
    std::u32string kept;
    for (const auto character : charactersOf(text)) {
        if (breaksLine(character))
            kept += U' ';
        else if (isWritten(character))
            kept += character;
    }
    return QString::fromStdU32String(kept);
}

} // namespace

void EditedText::setString(std::string_view text) {
    endComposing();
    string_ = cleaned(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    anchor_ = caret_ = string_.size();
}

EditedText::Range EditedText::selection() const {
    const auto [begin, end] = std::minmax(anchor_, caret_);
    return {begin, end};
}

QString EditedText::selectedText() const {
    const auto [begin, end] = selection();
    return string_.mid(begin, end - begin);
}

void EditedText::insert(const QString& text) {
    replace(composed_.isEmpty() ? selection() : composed_, cleaned(text));
}

void EditedText::deleteBackward(Step step) {
    const auto selected = selection();
    replace(selected.isEmpty() ? Range{this->step(step, false), caret_} : selected, {});
}

void EditedText::deleteForward(Step step) {
    const auto selected = selection();
    replace(selected.isEmpty() ? Range{caret_, this->step(step, true)} : selected, {});
}

void EditedText::replace(Range range, const QString& text) {
    endComposing();
    string_.replace(range.begin, range.end - range.begin, text);
    anchor_ = caret_ = boundaryFrom(range.begin + text.size());
}

void EditedText::placeCaret(qsizetype position, Selecting selecting) {
    endComposing();
    caret_ = boundaryBefore(std::clamp<qsizetype>(position, 0, string_.size()));
    if (selecting == Selecting::No)
        anchor_ = caret_;
}

void EditedText::moveCaret(Step step, bool forward, Selecting selecting) {
    const auto selected = selection();
    const auto leavesSelection = selecting == Selecting::No && step == Step::Character && !selected.isEmpty();
    if (leavesSelection)
        placeCaret(forward ? selected.end : selected.begin);
    else
        placeCaret(this->step(step, forward), selecting);
}

void EditedText::selectAll() {
    endComposing();
    anchor_ = 0;
    caret_ = string_.size();
}

void EditedText::selectWordAt(qsizetype position) {
    endComposing();
    QTextBoundaryFinder finder(BoundaryType::Word, string_);
    finder.setPosition(std::clamp<qsizetype>(position, 0, string_.size()));
    const auto endsWord = finder.boundaryReasons().testFlag(QTextBoundaryFinder::EndOfItem) &&
                          !finder.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem);
    if (!finder.isAtBoundary() || endsWord || finder.position() == string_.size())
        finder.toPreviousBoundary();
    anchor_ = std::max<qsizetype>(finder.position(), 0);
    finder.setPosition(anchor_);
    const auto end = finder.toNextBoundary();
    caret_ = end < 0 ? string_.size() : end;
}

void EditedText::compose(const QString& text, qsizetype caret) {
    const auto clean = cleaned(text);
    const auto replaced = composed_.isEmpty() ? selection() : composed_;
    replace(replaced, clean);
    composed_ = {replaced.begin, replaced.begin + clean.size()};
    anchor_ = caret_ = boundaryBefore(replaced.begin + std::clamp<qsizetype>(caret, 0, clean.size()));
}

void EditedText::removeAround(qsizetype offset, qsizetype length) {
    const auto begin = std::clamp<qsizetype>(caret_ + offset, 0, string_.size());
    const auto end = std::clamp<qsizetype>(begin + length, begin, string_.size());
    replace({boundaryBefore(begin), boundaryFrom(end)}, {});
}

qsizetype EditedText::step(Step step, bool forward) const {
    switch (step) {
    case Step::Character:
        return forward ? boundaryFrom(std::min(caret_ + 1, string_.size()))
                       : boundaryBefore(std::max<qsizetype>(caret_ - 1, 0));
    case Step::Word:
        return wordStep(forward);
    case Step::Line:
        break;
    }
    return forward ? string_.size() : 0;
}

/// To the next end of a word, or back to the previous begin of one.
qsizetype EditedText::wordStep(bool forward) const {
    const auto wanted = forward ? QTextBoundaryFinder::EndOfItem : QTextBoundaryFinder::StartOfItem;
    QTextBoundaryFinder finder(BoundaryType::Word, string_);
    finder.setPosition(caret_);
    do {
        const auto found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
        if (found < 0)
            return forward ? string_.size() : 0;
    } while (!finder.boundaryReasons().testFlag(wanted));
    return finder.position();
}

qsizetype EditedText::boundaryBefore(qsizetype position) const {
    QTextBoundaryFinder finder(BoundaryType::Grapheme, string_);
    finder.setPosition(position);
    return finder.isAtBoundary() ? position : std::max<qsizetype>(finder.toPreviousBoundary(), 0);
}

qsizetype EditedText::boundaryFrom(qsizetype position) const {
    QTextBoundaryFinder finder(BoundaryType::Grapheme, string_);
    finder.setPosition(position);
    if (finder.isAtBoundary())
        return position;
    const auto next = finder.toNextBoundary();
    return next < 0 ? string_.size() : next;
}
