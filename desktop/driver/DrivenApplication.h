#pragma once

#include "UIKit/UIViewController.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>

/// What the driver asks of the program that it drives: the home screen and the application started from
/// there. Implemented by the program; outlives the driver.
class DrivenApplication {
public:
    /// Nothing, or why it could not be done.
    using Outcome = std::expected<void, std::string>;

    virtual ~DrivenApplication() = default;

    /// The application in front: "home" or "Settings".
    [[nodiscard]] virtual std::string name() const = 0;

    /// The controller of the page in front; empty on the home screen.
    [[nodiscard]] virtual Ref<UIViewController> page() const = 0;

    /// Starts Settings if it is not in front, and shows the entry's pane.
    /// \param entry its label or file name; nothing for the pane of this project
    virtual Outcome open(const std::optional<std::string>& entry) = 0;

    /// Goes back as the navigation bar's button does.
    virtual Outcome goBack() = 0;

    /// Starts Settings afresh from the home screen.
    virtual Outcome relaunch() = 0;

    /// Called before the screen is looked at: what follows the time by itself is brought up to date.
    virtual void refresh() = 0;
};
