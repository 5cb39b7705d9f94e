#pragma once

#include "UIKit/UIAlertAction.h"

#include <string>
#include <utility>

/// A button of an alert, as the alert reads it. Immutable.
class DesktopAlertAction final : public UIAlertAction {
public:
    DesktopAlertAction(std::string title, UIAlertActionStyle style, Handler handler)
        : title_(std::move(title)),
          style_(style),
          handler_(std::move(handler)) {}

    [[nodiscard]] const std::string& title() const { return title_; }

    [[nodiscard]] UIAlertActionStyle style() const { return style_; }

    /// Runs the handler.
    void perform();

private:
    std::string title_;
    UIAlertActionStyle style_;
    Handler handler_;
};
