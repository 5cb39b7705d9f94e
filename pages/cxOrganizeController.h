#pragma once

#include "cxCollectDynamicSpecifiers.h"

/// The page of how the settings are ordered: the "Organize" list, with rows hidden by rule. Made by the class
/// name.
class cxOrganizeController final : public cxCollectDynamicSpecifiers {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
