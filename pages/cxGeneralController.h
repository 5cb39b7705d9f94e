#pragma once

#include "Preferences/PSListController.h"

/// The page of what is general: the "General" list. Made by the class name.
class cxGeneralController final : public PSListController {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
