#pragma once

#include "UIKit/UIViewController.h"

#include <string>

/// Stands for a pane that cannot be opened, and says why. Made by the Settings application.
class ProblemPage final : public UIViewController {
public:
    /// \param reason sentences for the user
    ProblemPage(const std::string& label, const std::string& reason);
};
