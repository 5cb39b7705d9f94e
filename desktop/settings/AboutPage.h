#pragma once

#include "Preferences/PSListController.h"

/// What there is to know of the device: its kind, language, time zone, appearance and screen. Made by the
/// Settings application.
class AboutPage final : public PSListController {
public:
    AboutPage();

    // PSListController:
    [[nodiscard]] Specifiers specifiers() override;
    [[nodiscard]] std::optional<PropertyList> readPreferenceValue(PSSpecifier& specifier) override;
};
