#include "InputMethod.h"

#include "ScreenPlacement.h"
#include "typing/TextInput.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <algorithm>

namespace {

using Attribute = QInputMethodEvent::Attribute;

/// Where the caret is in what is composed; at its end unless the input method says otherwise.
qsizetype caretIn(const QInputMethodEvent& event) {
    const auto& attributes = event.attributes();
    const auto isCaret = [](const Attribute& attribute) {
        return attribute.type == QInputMethodEvent::Cursor;
    };
    const auto found = std::ranges::find_if(attributes, isCaret);
    return found != attributes.end() ? found->start : event.preeditString().size();
}

/// The text without what is composed.
QString settledText(const EditedText& text) {
    auto string = text.string();
    return string.remove(text.composed().begin, text.composed().end - text.composed().begin);
}

/// A position of the text in what `settledText` gives.
qsizetype settled(const EditedText& text, qsizetype position) {
    const auto [begin, end] = text.composed();
    return position <= begin ? position : std::max(begin, position - (end - begin));
}

qsizetype otherEnd(const EditedText& text) {
    const auto [begin, end] = text.selection();
    return text.caret() == begin ? end : begin;
}

Qt::InputMethodHints hintsFor(const TextInputTraits& traits) {
    Qt::InputMethodHints hints = Qt::ImhNone;
    hints.setFlag(Qt::ImhHiddenText, traits.secure);
    hints.setFlag(Qt::ImhSensitiveData, traits.secure);
    hints.setFlag(Qt::ImhPreferNumbers, traits.keys == TextInputTraits::Keys::Numbers);
    hints.setFlag(Qt::ImhNoAutoUppercase, traits.capitals == TextInputTraits::Capitals::None);
    return hints;
}

int number(qsizetype position) {
    return static_cast<int>(position);
}

} // namespace

void InputMethod::compose(const QInputMethodEvent& event, TextInput& input) {
    input.edit([&event](EditedText& text) {
        const auto settles = !event.commitString().isEmpty() || event.replacementLength() > 0;
        if (settles || !text.composed().isEmpty())
            text.compose({}, 0);
        if (event.replacementLength() > 0)
            text.removeAround(event.replacementStart(), event.replacementLength());
        if (!event.commitString().isEmpty())
            text.insert(event.commitString());
        if (!event.preeditString().isEmpty())
            text.compose(event.preeditString(), caretIn(event));
    });
}

QVariant InputMethod::answer(Qt::InputMethodQuery query, const TextInput* input,
                             const ScreenPlacement& placement) {
    if (query == Qt::ImEnabled)
        return input != nullptr;
    if (input == nullptr)
        return {};
    const auto& text = input->editedText();
    switch (query) {
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle:
        return placement.toWindow(input->caretOnScreen());
    case Qt::ImSurroundingText:
        return settledText(text);
    case Qt::ImCurrentSelection:
        return text.selectedText();
    case Qt::ImCursorPosition:
        return number(settled(text, text.caret()));
    case Qt::ImAnchorPosition:
        return number(settled(text, otherEnd(text)));
    case Qt::ImHints:
        return static_cast<int>(hintsFor(input->textInputTraits()));
    default:
        return {};
    }
}

void InputMethod::follow(const TextInput* input) {
    const auto text = input != nullptr ? input->editedText().string() : QString();
    const auto caret = input != nullptr ? input->editedText().caret() : 0;
    const auto isOther = std::exchange(input_, input) != input;
    const auto isEdited = text_ != text || caret_ != caret;
    text_ = text;
    caret_ = caret;
    if (isOther)
        QGuiApplication::inputMethod()->reset();
    if (isOther || isEdited)
        QGuiApplication::inputMethod()->update(Qt::ImQueryAll);
}
