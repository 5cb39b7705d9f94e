#pragma once

#include "UIKit/UIControl.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"

#include <functional>
#include <string>

/// An application on the home screen: its icon with its name below. Made by the home screen.
class HomeIcon final : public UIControl {
public:
    static constexpr double phoneSide = 60; ///< points
    static constexpr double padSide = 76;

    /// \param iconPath the device path of the picture, without a scale
    HomeIcon(const std::string& name, const std::string& iconPath, std::function<void()> open);

    [[nodiscard]] Ref<UIImage> image() const { return image_->image(); }

    void setIconShown(bool shown);
    void setNameShown(bool shown);

    /// The icon's rectangle in this view; square and at the top.
    [[nodiscard]] CGRect iconFrame() const;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] double side() const;

    Ref<UIImageView> image_;
    Ref<UILabel> label_;
};
