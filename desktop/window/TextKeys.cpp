#include "TextKeys.h"

#include "typing/Clipboard.h"
#include "typing/TextInput.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

using Selecting = EditedText::Selecting;
using Step = EditedText::Step;

/// A key that moves the caret.
struct Movement {
    QKeySequence::StandardKey key;
    Step step;
    bool forward; ///< in a text that is written from left to right
    Selecting selecting;
};

constexpr std::array movements{
    Movement{QKeySequence::MoveToPreviousChar, Step::Character, false, Selecting::No},
    Movement{QKeySequence::MoveToNextChar, Step::Character, true, Selecting::No},
    Movement{QKeySequence::SelectPreviousChar, Step::Character, false, Selecting::Yes},
    Movement{QKeySequence::SelectNextChar, Step::Character, true, Selecting::Yes},
    Movement{QKeySequence::MoveToPreviousWord, Step::Word, false, Selecting::No},
    Movement{QKeySequence::MoveToNextWord, Step::Word, true, Selecting::No},
    Movement{QKeySequence::SelectPreviousWord, Step::Word, false, Selecting::Yes},
    Movement{QKeySequence::SelectNextWord, Step::Word, true, Selecting::Yes},
};

/// The same by lines, where the direction of writing does not matter.
constexpr std::array lineMovements{
    Movement{QKeySequence::MoveToStartOfLine, Step::Line, false, Selecting::No},
    Movement{QKeySequence::MoveToEndOfLine, Step::Line, true, Selecting::No},
    Movement{QKeySequence::SelectStartOfLine, Step::Line, false, Selecting::Yes},
    Movement{QKeySequence::SelectEndOfLine, Step::Line, true, Selecting::Yes},
    Movement{QKeySequence::MoveToPreviousLine, Step::Line, false, Selecting::No},
    Movement{QKeySequence::MoveToNextLine, Step::Line, true, Selecting::No},
    Movement{QKeySequence::SelectPreviousLine, Step::Line, false, Selecting::Yes},
    Movement{QKeySequence::SelectNextLine, Step::Line, true, Selecting::Yes},
};

void copySelection(const TextInput& input, Clipboard& clipboard) {
    const auto text = input.editedText().selectedText();
    if (!text.isEmpty() && !input.textInputTraits().secure)
        clipboard.setText(text.toStdString());
}

void cut(TextInput& input, Clipboard& clipboard) {
    copySelection(input, clipboard);
    if (!input.editedText().selection().isEmpty())
        input.edit([](EditedText& text) { text.deleteBackward(); });
}

void paste(TextInput& input, Clipboard& clipboard) {
    input.edit(
        [text = QString::fromStdString(clipboard.text())](EditedText& edited) { edited.insert(text); });
}

void selectAll(TextInput& input, Clipboard& /*clipboard*/) {
    input.edit([](EditedText& text) { text.selectAll(); });
}

void eraseWord(TextInput& input, Clipboard& /*clipboard*/) {
    input.edit([](EditedText& text) { text.deleteBackward(Step::Word); });
}

template <Step step>
void eraseForward(TextInput& input, Clipboard& /*clipboard*/) {
    input.edit([](EditedText& text) { text.deleteForward(step); });
}

struct Shortcut {
    QKeySequence::StandardKey key;
    void (*run)(TextInput&, Clipboard&);
};

constexpr std::array shortcuts{
    Shortcut{QKeySequence::Copy,
             [](TextInput& input, Clipboard& clipboard) { copySelection(input, clipboard); }},
    Shortcut{QKeySequence::Cut, cut},
    Shortcut{QKeySequence::Paste, paste},
    Shortcut{QKeySequence::SelectAll, selectAll},
    Shortcut{QKeySequence::DeleteStartOfWord, eraseWord},
    Shortcut{QKeySequence::Delete, eraseForward<Step::Character>},
    Shortcut{QKeySequence::DeleteEndOfWord, eraseForward<Step::Word>},
};

bool move(const QKeyEvent& event, TextInput& input) {
    const auto matches = [&event](const Movement& movement) { return event.matches(movement.key); };
    const auto* const found = std::ranges::find_if(movements, matches);
    const auto* const line = std::ranges::find_if(lineMovements, matches);
    if (found == movements.end() && line == lineMovements.end())
        return false;
    const auto byLine = found == movements.end();
    const auto& movement = byLine ? *line : *found;
    const auto turnsRound = !byLine && input.editedText().string().isRightToLeft();
    input.edit([&movement, turnsRound](EditedText& text) {
        text.moveCaret(movement.step, movement.forward != turnsRound, movement.selecting);
    });
    return true;
}

/// Keys that are no shortcuts of the desktop's.
bool edit(const QKeyEvent& event, TextInput& input) {
    switch (event.key()) {
    case Qt::Key_Backspace:
        input.edit([](EditedText& text) { text.deleteBackward(); });
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        input.returnPressed();
        return true;
    default:
        return false;
    }
}

bool type(const QKeyEvent& event, TextInput& input) {
    const auto commands =
        event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const auto text = event.text();
    if (commands || text.isEmpty() || text[0].category() == QChar::Other_Control)
        return false;
    input.edit([&text](EditedText& edited) { edited.insert(text); });
    return true;
}

} // namespace

bool typeKey(const QKeyEvent& event, TextInput& input, Clipboard& clipboard) {
    const auto* const shortcut = std::ranges::find_if(
        shortcuts, [&event](const Shortcut& candidate) { return event.matches(candidate.key); });
    if (shortcut != shortcuts.end()) {
        shortcut->run(input, clipboard);
        return true;
    }
    return edit(event, input) || move(event, input) || type(event, input);
}
