#pragma once

#include "UIKit/UIAction.h"

/// One row of a menu, as the menu reads it.
class DesktopAction final : public UIAction {
public:
    DesktopAction(std::string title, Ref<UIImage> image, std::optional<std::string> identifier,
                  Handler handler)
        : title_(std::move(title)),
          image_(std::move(image)),
          identifier_(std::move(identifier)),
          handler_(std::move(handler)) {}

    [[nodiscard]] const std::string& title() const { return title_; }

    [[nodiscard]] const Ref<UIImage>& image() const { return image_; }

    [[nodiscard]] bool isDestructive() const;
    [[nodiscard]] bool isDisabled() const;
    /// Runs the handler.
    void perform();

    // UIAction:
    void setAttributes(UIMenuElementAttributes attributes) override { attributes_ = attributes; }

private:
    std::string title_;
    Ref<UIImage> image_;
    std::optional<std::string> identifier_;
    Handler handler_;
    UIMenuElementAttributes attributes_ = UIMenuElementAttributes::None;
};
