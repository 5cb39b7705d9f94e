#pragma once

#include "FontStyle.h"
#include "TextLayout.h"
#include "UIKit/UITextField.h"
#include "controls/UIControlPeer.h"
#include "typing/TextFieldContent.h"
#include "typing/TextInput.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The desktop's half of a text field: its text, how that is shown, its caret and the finger on it. Made with
/// the field.
class UITextFieldPeer : public UIControlPeer, public TextInput, public TextFieldContent {
public:
    using Object = UITextField;

    ~UITextFieldPeer() override;

    /// Makes the caret; called once, by the field's constructor.
    void setUp();

    void setText(const std::string& text);
    void setPlaceholder(const std::string& placeholder);
    void setBorderStyle(UITextBorderStyle style);
    void setTextInputTraits(const TextInputTraits& traits);

    /// Whether the key "return" gives the keyboard up. Not so until it is told.
    void setEndsOnReturn(bool ends) { endsOnReturn_ = ends; }

    /// Called when the key "return" has been pressed.
    void setReturnHandler(std::function<void()> handler) { returnHandler_ = std::move(handler); }

    /// Called when it has the keyboard no more; not at the field's own end.
    void setEndHandler(std::function<void()> handler) { endHandler_ = std::move(handler); }

    /// \returns whether it has the keyboard now; outside of a window it has it later
    bool becomeFirstResponder();
    /// \returns whether it is without it now, which is always so
    bool resignFirstResponder();

    /// Where the text is, in the field's bounds.
    [[nodiscard]] CGRect textRect() const;

    /// How far the text is moved to the left so that the caret is seen.
    [[nodiscard]] double scrolled() const { return scrolled_; }

    /// Where the caret before the UTF-16 unit at a position is, in the field's bounds.
    [[nodiscard]] CGRect caretRect(qsizetype position) const;

    [[nodiscard]] UIView& caretView() const { return *caret_; }

    // UIControlPeer:
    void stateDidChange() override;

    // UIViewPeer:
    void layoutSubviews() override;
    void didMoveToWindow() override;
    void tintColorDidChange() override;
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicWidth() const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] std::optional<std::string> shownText() const override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override;

    // TextInput:
    [[nodiscard]] UIView& inputView() const override { return view(); }

    [[nodiscard]] const EditedText& editedText() const override { return text_; }

    [[nodiscard]] TextInputTraits textInputTraits() const override { return inputTraits_; }

    void edit(const std::function<void(EditedText&)>& change) override;
    void returnPressed() override;
    [[nodiscard]] CGRect caretOnScreen() const override;
    void firstResponderDidChange(bool isFirstResponder) override;
    void setCaretLit(bool lit) override;

    // TextFieldContent:
    [[nodiscard]] std::string fieldPlaceholder() const override { return placeholder_; }

    [[nodiscard]] std::string fieldText() const override { return text_.utf8(); }

    [[nodiscard]] bool fieldIsFirstResponder() const override { return isFirstResponder_; }

private:
    /// One of a row of taps at one place.
    struct Tap {
        CGPoint place;
        std::chrono::nanoseconds time{};
        int count = 0;
    };

    /// The finger that handles the field.
    struct Press {
        CGPoint place;        ///< where it came down
        qsizetype start = 0;  ///< the same in the text
        bool selects = false; ///< it has moved so far that it is no tap
    };

    /// The text as it was painted last, and what it was laid out for.
    struct Laid {
        double scale;
        double width; ///< infinite while it is edited
        TextLayout layout;
    };

    void changed();
    void showChange();
    /// The text as it may be read: of the same length.
    [[nodiscard]] QString readableText() const;
    void placeCaret();
    void followCaret();
    void countTap(const DesktopTouch& touch);
    void tapped(const DesktopTouch& touch);
    [[nodiscard]] const TextLayout& layout() const;
    /// What the text is laid out in: all that it needs while it is edited.
    [[nodiscard]] double laidWidth() const;
    [[nodiscard]] HorizontalAlignment alignment() const;
    /// Where the layout stands, as far as it is scrolled.
    [[nodiscard]] double textLeft() const;
    [[nodiscard]] double textTop() const;
    [[nodiscard]] std::vector<QRectF> rectsOf(EditedText::Range range) const;
    [[nodiscard]] std::size_t byteIndex(qsizetype position) const;
    [[nodiscard]] qsizetype positionAt(const DesktopTouch& touch) const;
    [[nodiscard]] double textWidth() const;
    void drawText(QPainter& painter, const Traits& traits) const;
    void drawPlaceholder(QPainter& painter, const Traits& traits) const;

    EditedText text_;
    std::string placeholder_;
    TextInputTraits inputTraits_;
    std::function<void()> endHandler_;    ///< may be empty
    std::function<void()> returnHandler_; ///< may be empty
    UITextBorderStyle borderStyle_ = UITextBorderStyle::None;
    Ref<UIView> caret_;
    double scrolled_ = 0;
    mutable std::optional<Laid> laid_;
    std::optional<Press> press_;
    Tap lastTap_;
    bool endsOnReturn_ = false;
    bool isFirstResponder_ = false;
    bool wantsKeyboard_ = false; ///< once it is in a window
};
