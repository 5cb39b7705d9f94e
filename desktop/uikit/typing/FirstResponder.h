#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIView.h"

#include <chrono>
#include <functional>
#include <optional>

class TextInput;

/// Who gets what is typed, which is one at a time or nobody, and whether its caret is lit. Part of the
/// screen; keeps nothing alive.
class FirstResponder {
public:
    /// \param changed called when another one has become it, or nobody
    explicit FirstResponder(std::function<void()> changed) : changed_(std::move(changed)) {}

    /// Null when nobody is.
    [[nodiscard]] TextInput* input() const;

    /// Who was it before is it no more.
    void set(TextInput& input);
    /// Nobody is, if it was this one.
    void remove(const TextInput& input);
    /// The same if it was that view or one within it, as when that is on its way out.
    void removeIn(const UIView& view);
    void clear();

    /// Its text or caret has changed: the caret is lit for a while.
    void noteEdit();
    /// Lights the caret, or not, as it is to be now. Called before each picture: blinking is no work that
    /// waits.
    void followTime() const;
    /// How long the caret stays as it is; nothing when there is none.
    [[nodiscard]] std::optional<std::chrono::nanoseconds> untilBlink() const;

private:
    std::function<void()> changed_;
    Weak<UIView> view_;
    TextInput* input_ = nullptr;
    std::chrono::nanoseconds litSince_{}; ///< uptime
};
