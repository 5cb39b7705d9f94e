#pragma once

#include "keyboard/KeyboardKey.h"

#include <cstddef>
#include <vector>

/// The on-screen keyboard: types into the first responder. Made and placed by `Keyboard`.
class KeyboardView final : public UIView {
public:
    KeyboardView();

    /// Begins anew, with the keys that suit the text that is edited.
    void reset();

    [[nodiscard]] const std::vector<Ref<KeyboardKey>>& keys() const { return keys_; }

    [[nodiscard]] bool isShifted() const { return isShifted_; }

    // UIView:
    void layoutSubviews() override;

private:
    void showPage(KeyboardLayout::Page page);
    void showNextLanguage();
    void setShifted(bool shifted);
    void shiftForText();
    void press(const KeyboardLayout::Key& key);
    void type(const std::string& text);

    [[nodiscard]] const KeyboardLanguage& language() const { return languages_[language_]; }

    std::vector<KeyboardLanguage> languages_;
    std::size_t language_ = 0; ///< its place among them
    std::vector<Ref<KeyboardKey>> keys_;
    KeyboardLayout::Page page_ = KeyboardLayout::Page::Letters;
    double laidOutWidth_ = 0;
    bool isShifted_ = false;
};
