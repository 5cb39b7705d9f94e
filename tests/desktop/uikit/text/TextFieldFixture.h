#pragma once

#include "keyboard/Keyboard.h"
#include "screen/TouchFixture.h"
#include "text/UITextFieldPeer.h"
#include "typing/FirstResponder.h"

/// A phone with a text field of 200 by 40 points on its screen, its text's left edge at 17 points.
class TextFieldFixture : public TouchFixture {
protected:
    explicit TextFieldFixture(const TestDevice::Settings& settings = {});

    [[nodiscard]] UITextFieldPeer& peer() const { return peerOf<UITextFieldPeer>(*field); }

    /// Another one, below.
    [[nodiscard]] Ref<UITextField> addField() const;
    /// Taps where the caret before a UTF-16 unit is.
    void tapAt(qsizetype position);
    void type(const QString& text) const;
    /// The text with "|" at the caret, or "[" and "]" around the selection.
    [[nodiscard]] std::string shown() const;

    /// Runs what is due now.
    void run() { advance({}); }

    static constexpr CGRect frame = CGRectMake(10, 100, 200, 40);

    Ref<UITextField> field = make<UITextField>();
};
