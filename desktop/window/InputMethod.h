#pragma once

#include "typing/EditedText.h"

#include <QVariant>

class QInputMethodEvent;
class ScreenPlacement;
class TextInput;

/// Brings the desktop's input methods and the first responder together. Made and owned by the window.
class InputMethod {
public:
    /// Puts what is composed and what is committed into the text.
    static void compose(const QInputMethodEvent& event, TextInput& input);

    /// What an input method may ask; an invalid value for what it is not told. What is composed is no part of
    /// the text for it.
    /// \param input null when nobody takes text
    [[nodiscard]] static QVariant answer(Qt::InputMethodQuery query, const TextInput* input,
                                         const ScreenPlacement& placement);

    /// Tells the desktop when there is something new to ask.
    /// \param input null when nobody takes text
    void follow(const TextInput* input);

private:
    const TextInput* input_ = nullptr; ///< compared only
    QString text_;
    qsizetype caret_ = 0;
};
