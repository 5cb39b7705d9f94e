#pragma once

#include "cxCollectDynamicSpecifiers.h"

/// The page of the background: the "Background" list, with rows hidden by rule. Made by the class name.
class cxBackgroundController final : public cxCollectDynamicSpecifiers {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
