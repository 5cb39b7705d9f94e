#pragma once

#include "UIKit/UIViewController.h"
#include "specifiers/DesktopSpecifier.h"

#include <functional>

/// The sheet that a `GcImagePickerCell` opens for its row: takes a file of the host by its path, shows the
/// picture that is kept, and takes it away. What is no picture is refused with a message.
class GcImagePickerController final : public UIViewController {
public:
    /// \param changed called when another picture is kept, or none any more
    GcImagePickerController(const Ref<DesktopSpecifier>& row, std::function<void()> changed);
};
