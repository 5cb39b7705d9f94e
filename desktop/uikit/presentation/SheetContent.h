#pragma once

#include "screen/Presented.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the content of a sheet or popover tells of itself: to scripts, beyond its navigation bar and its text
/// fields, and to what it is presented in. A controller's peer derives from it; the sheet that the controller
/// is presented in asks, and so it does when the controller is the top of a navigation controller that is
/// presented.
class SheetContent {
public:
    virtual ~SheetContent() = default;

    /// The title in the content; empty when there is none. Then the navigation bar's counts.
    [[nodiscard]] virtual std::string sheetTitle() const = 0;
    /// The text below the title; empty when there is none.
    [[nodiscard]] virtual std::string sheetDetail() const = 0;
    /// The name of the symbol above the title; empty when there is none.
    [[nodiscard]] virtual std::string sheetSymbol() const = 0;
    /// The list below them.
    [[nodiscard]] virtual std::vector<Presented::Item> sheetItems() const = 0;

    /// What scripts are told that it is.
    [[nodiscard]] virtual std::string_view sheetKind() const { return "sheet"; }

    /// What a bar that it has itself shows; empty when it has none.
    [[nodiscard]] virtual Ref<UINavigationItem> sheetBarItem() const { return nullptr; }

    /// How high its card is on a phone, in points; absent when it fills the screen.
    [[nodiscard]] virtual std::optional<double> sheetHeight() const { return std::nullopt; }

    /// What it is about, where that has URLs.
    [[nodiscard]] virtual std::vector<std::string> sheetUrls() const { return {}; }
};
