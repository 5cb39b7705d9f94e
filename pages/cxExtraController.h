#pragma once

#include "Preferences/PSListController.h"

/// The page of the extras: the "Extra" list. Made by the class name.
class cxExtraController final : public PSListController {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
