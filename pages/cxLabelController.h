#pragma once

#include "Preferences/PSListController.h"

/// The page of the labels: the "Label" list. Made by the class name.
class cxLabelController final : public PSListController {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
