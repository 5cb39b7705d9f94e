#pragma once

#include "Preferences/PSListController.h"

/// The page of the colours: the "Color" list. Made by the class name.
class cxColorController final : public PSListController {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
