#pragma once

#include <QString>
#include <string>
#include <string_view>

/// A text of one line with a caret or a selection, and with what an input method composes in it. Positions
/// are UTF-16 units and stand between characters as a reader counts them (grapheme clusters). Owned by what
/// shows the text.
class EditedText {
public:
    struct Range {
        qsizetype begin = 0;
        qsizetype end = 0;

        [[nodiscard]] bool isEmpty() const { return begin == end; }

        friend bool operator==(const Range&, const Range&) = default;
    };

    enum class Step { Character, Word, Line };

    /// Keeps the selection or drops it as the caret moves.
    enum class Selecting { No, Yes };

    [[nodiscard]] const QString& string() const { return string_; }

    [[nodiscard]] std::string utf8() const { return string_.toStdString(); }

    /// Puts the caret at the end. Cleaned as what is inserted is.
    void setString(std::string_view text);

    /// The end of the selection that moves.
    [[nodiscard]] qsizetype caret() const { return caret_; }

    [[nodiscard]] Range selection() const;
    [[nodiscard]] QString selectedText() const;

    /// Puts a text in place of the selection, or of what is composed. Line breaks and tabs become spaces;
    /// other control characters and what is no character are left out.
    void insert(const QString& text);
    /// Deletes the selection, or the character before the caret.
    void deleteBackward(Step step = Step::Character);
    /// Deletes the selection, or the character after the caret.
    void deleteForward(Step step = Step::Character);

    /// Positions within a character count as the one before it.
    void placeCaret(qsizetype position, Selecting selecting = Selecting::No);
    /// Without selecting, a selection is left at the end on that side.
    void moveCaret(Step step, bool forward, Selecting selecting = Selecting::No);
    void selectAll();
    /// The word that a position is in or ends, or the blank between two.
    void selectWordAt(qsizetype position);

    /// What is being composed, which is part of the text; empty when nothing is.
    [[nodiscard]] Range composed() const { return composed_; }

    /// Puts a text in place of what was composed before, or of the selection.
    /// \param caret where the caret is in it
    void compose(const QString& text, qsizetype caret);

    /// What is composed becomes text like any other.
    void endComposing() { composed_ = {}; }

    /// Takes characters away, counted from the caret.
    void removeAround(qsizetype offset, qsizetype length);

private:
    void replace(Range range, const QString& text);
    [[nodiscard]] qsizetype step(Step step, bool forward) const;
    [[nodiscard]] qsizetype wordStep(bool forward) const;
    [[nodiscard]] qsizetype boundaryBefore(qsizetype position) const;
    [[nodiscard]] qsizetype boundaryFrom(qsizetype position) const;

    QString string_;
    qsizetype anchor_ = 0;
    qsizetype caret_ = 0;
    Range composed_;
};
