#pragma once

#include "Preferences/PSListController.h"
#include "specifiers/DesktopSpecifier.h"

#include <optional>

/// The page that a "PSLinkListCell" opens: a row for each value that the row may have, with a check mark at
/// its present one. A tap sets the value through the page that the row is on; the user goes back by himself.
/// The row's "staticTextMessage" stands below the list.
class PSListItemsController final : public PSListController {
public:
    PSListItemsController();

    [[nodiscard]] Specifiers specifiers() override;

    // What the list of values asks, as for a row of its own.
    [[nodiscard]] std::optional<PropertyList> chosenValue();
    void chooseValue(const std::optional<PropertyList>& value);

private:
    /// The row that opened the page; empty when there is none.
    [[nodiscard]] Ref<DesktopSpecifier> opener() const;
};
