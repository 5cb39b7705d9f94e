#pragma once

#include "UIKit/UIControl.h"
#include "UIKit/UIImage.h"
#include "UIKit/UIImageView.h"

#include <memory>

/// The platform's ready-made buttons. The numbers are the platform's.
enum class UIButtonType : int {
    InfoDark = 4 ///< a circled "i"
};

/// What a control is in when it looks in a way of its own; the platform's numbers.
enum class UIControlState : unsigned { Normal = 0 };

/// A title, an image, or both, that can be pressed.
class UIButton : public UIControl {
public:
    UIButton();

    [[nodiscard]] static Ref<UIButton> buttonWithType(UIButtonType type);

    /// Empty for none. The image stands before the title, and by itself in the middle unless the content
    /// alignment says otherwise.
    void setImage(const Ref<UIImage>& image, UIControlState state);
    /// What the image keeps away from the content's edges; none at first.
    void setImageEdgeInsets(const UIEdgeInsets& insets);

    /// What shows the image; the button's own.
    [[nodiscard]] UIImageView& imageView() const;

protected:
    explicit UIButton(std::unique_ptr<UIViewPeer> peer);
};
