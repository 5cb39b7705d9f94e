#pragma once

#include "UIKit/UIViewController.h"
#include "specifiers/DesktopSpecifier.h"

#include <functional>

/// Whether the row wants to be confirmed before it does anything: it has a dictionary "confirmation".
[[nodiscard]] bool wantsConfirmation(const DesktopSpecifier& row);

/// Asks the row's question ("title", "prompt", "okTitle", "cancelTitle") above a page, red where the row
/// "isDestructive".
/// \param confirmed called when the answer is yes, once the question is gone
/// \param cancelled likewise when it is no
void askForConfirmation(UIViewController& page, const DesktopSpecifier& row, std::function<void()> confirmed,
                        std::function<void()> cancelled);
