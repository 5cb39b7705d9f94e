#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIFont.h"
#include "UIKit/UIView.h"

#include <optional>
#include <string>

/// The numbers are the platform's.
enum class NSTextAlignment : int { Left = 0, Center = 1, Right = 2, Natural = 4 };

/// How a text is set that has no room in its lines. The numbers are the platform's.
enum class NSLineBreakMode : int {
    ByWordWrapping = 0,  ///< what does not fit is left out
    ByTruncatingTail = 4 ///< an ellipsis stands for it
};

/// A text that cannot be edited, of one line unless told otherwise.
class UILabel : public UIView {
public:
    UILabel();

    void setText(const std::optional<std::string>& text);
    void setFont(const Ref<UIFont>& font);
    void setTextColor(const Ref<UIColor>& color);
    void setTextAlignment(NSTextAlignment alignment);
    /// At most; 0 for as many as the text needs.
    void setNumberOfLines(int lines);
    /// An ellipsis until another is set.
    void setLineBreakMode(NSLineBreakMode mode);
    /// Whether a text that does not fit is made smaller, down to the least scale.
    void setAdjustsFontSizeToFitWidth(bool adjusts);
    /// As a part of the font's size.
    void setMinimumScaleFactor(double factor);
    /// Whether a font of a text style follows the size of text that the user has chosen.
    void setAdjustsFontForContentSizeCategory(bool adjusts);
    /// Of the text, without a blur; empty for none.
    void setShadowColor(const Ref<UIColor>& color);
    /// In points, to the right and down.
    void setShadowOffset(CGSize offset);

protected:
    explicit UILabel(std::unique_ptr<UIViewPeer> peer);
};
