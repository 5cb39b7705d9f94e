#pragma once

#include "UIKit/UIButton.h"

#include <optional>
#include <string>

/// A button that names the page it opens. Whoever hears of its tap asks it for that.
class TweakButton final : public UIButton {
public:
    /// The name of the page's class; absent for none.
    [[nodiscard]] const std::optional<std::string>& identifier() const { return identifier_; }

    void setIdentifier(const std::optional<std::string>& identifier);

private:
    std::optional<std::string> identifier_;
};
