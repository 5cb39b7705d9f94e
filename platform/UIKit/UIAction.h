#pragma once

#include "UIKit/UIImage.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class UIAction;

/// How a menu's row looks and acts; a set of flags with the platform's numbers.
enum class UIMenuElementAttributes : unsigned { None = 0, Disabled = 1U << 0U, Destructive = 1U << 1U };

/// One row of a menu: what it shows, and what choosing it does.
class UIAction : public NSObject {
public:
    using Handler = std::function<void(UIAction& action)>;

    /// \param image may be empty
    /// \param identifier nothing lets the system make one
    [[nodiscard]] static Ref<UIAction> actionWithTitle(std::string_view title, const Ref<UIImage>& image,
                                                       const std::optional<std::string>& identifier,
                                                       Handler handler);

    virtual void setAttributes(UIMenuElementAttributes attributes) = 0;
};
