#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIFont.h"
#include "UIKit/UIView.h"

#include <optional>
#include <string>

/// The numbers are the platform's.
enum class NSTextAlignment : int { Left = 0, Center = 1, Right = 2, Natural = 4 };

/// A text that cannot be edited, of one line unless told otherwise.
class UILabel : public UIView {
public:
    UILabel();

    void setText(const std::optional<std::string>& text);
    void setFont(const Ref<UIFont>& font);
    void setTextColor(const Ref<UIColor>& color);
    void setTextAlignment(NSTextAlignment alignment);

protected:
    explicit UILabel(std::unique_ptr<UIViewPeer> peer);
};
