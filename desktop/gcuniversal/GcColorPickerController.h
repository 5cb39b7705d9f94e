#pragma once

#include "ColorComponents.h"
#include "UIKit/UIViewController.h"
#include "specifiers/DesktopSpecifier.h"

#include <functional>
#include <string>

/// The sheet of colours that a `GcColorPickerCell` opens for its row. Saves a colour that was chosen as it is
/// left; with "safeOnDismiss" switched off only when its button is pressed.
class GcColorPickerController final : public UIViewController {
public:
    /// Gets the chosen colour's hex digits.
    using Save = std::function<void(const std::string& hex)>;

    GcColorPickerController(const Ref<DesktopSpecifier>& row, Save save);
};

/// The colour that a row stands for: its value, else its "fallback", else a clear one.
[[nodiscard]] ColorComponents colorOfRow(DesktopSpecifier& row);
