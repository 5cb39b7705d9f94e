#pragma once

#include "cxCollectDynamicSpecifiers.h"

/// The page of the banner: the "Banner" list, with rows hidden by rule. Made by the class name.
class cxBannerController final : public cxCollectDynamicSpecifiers {
public:
    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
};
