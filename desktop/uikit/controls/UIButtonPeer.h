#pragma once

#include "FontStyle.h"
#include "UIKit/UIButton.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "controls/UIControlPeer.h"

#include <optional>
#include <string>

/// The desktop's half of a system button: content in the tint, pale while it is pressed, gray while it is
/// disabled. Made with the button.
class UIButtonPeer : public UIControlPeer {
public:
    using Object = UIButton;

    UIButtonPeer();

    /// Gives a new button what buttons of the type show.
    void becomeOfType(UIButtonType type);

    void setTitle(const std::optional<std::string>& title);

    /// Empty for none. It stands before the title.
    void setImage(const Ref<UIImage>& image);

    /// What the image keeps away from the content's edges; none until it is set.
    void setImageInsets(const UIEdgeInsets& insets);

    /// Regular and 15 points until another is set.
    void setFontStyle(const FontStyle& style);

    /// Empty for the tint.
    void setTitleColor(const Ref<UIColor>& color);

    [[nodiscard]] UILabel& titleLabel() const { return *titleLabel_; }

    [[nodiscard]] UIImageView& imageView() const { return *imageView_; }

    // UIControlPeer:
    void stateDidChange() override;

    // UIViewPeer:
    void layoutSubviews() override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicWidth() const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    void tintColorDidChange() override;
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] std::optional<std::string> shownText() const override;

private:
    friend class UIButton;

    void viewMade();
    void contentDidChange();
    void updateColors();
    void updatePressedLook();
    [[nodiscard]] CGSize imageSize() const;
    [[nodiscard]] CGSize titleSize() const;
    /// \param room for the content
    /// \param left of image and title, when they stand in the middle
    [[nodiscard]] CGRect imageFrame(const CGRect& room, double left) const;

    Ref<UILabel> titleLabel_;
    Ref<UIImageView> imageView_;
    Ref<UIColor> titleColor_;
    UIEdgeInsets imageInsets_;
    bool isPale_ = false;
};
