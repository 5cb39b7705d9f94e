#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "typing/EditedText.h"
#include "typing/TextInputTraits.h"

#include <functional>

class UIView;

/// What keys, input methods and scripts type into while it is the first responder. Implemented by the peers
/// of views that take text.
class TextInput {
public:
    virtual ~TextInput() = default;

    [[nodiscard]] virtual UIView& inputView() const = 0;
    [[nodiscard]] virtual const EditedText& editedText() const = 0;

    [[nodiscard]] virtual TextInputTraits textInputTraits() const = 0;

    /// Has the text changed, and shows what became of it.
    virtual void edit(const std::function<void(EditedText&)>& change) = 0;

    /// The key "return" ends what is being composed, and may end more.
    virtual void returnPressed() = 0;

    /// Where the caret is, in points of the screen.
    [[nodiscard]] virtual CGRect caretOnScreen() const = 0;
    /// It has become the first responder, or is it no more.
    virtual void firstResponderDidChange(bool isFirstResponder) = 0;
    /// The caret blinks.
    virtual void setCaretLit(bool lit) = 0;
};
