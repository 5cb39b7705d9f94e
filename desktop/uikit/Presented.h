#pragma once

#include "CoreGraphics/CGGeometry.h"

#include <string>
#include <string_view>
#include <vector>

class UIView;

/// Something that was presented above the application and is not yet on its way out: a menu, an alert, a
/// sheet. Implemented by the view or controller that shows it, which enters itself in `Presentations`.
class Presented {
public:
    /// What may be chosen there.
    struct Action {
        std::string title;
        std::string symbol; ///< the name of its image; empty when it has none or a picture
        bool destructive = false;
        bool disabled = false;
        CGRect frame; ///< in points of the screen
    };

    virtual ~Presented() = default;

    /// "menu", "alert", "sheet" and so on.
    [[nodiscard]] virtual std::string_view kind() const = 0;
    /// Empty when it has none.
    [[nodiscard]] virtual std::string title() const = 0;
    [[nodiscard]] virtual std::vector<Action> actions() const = 0;
    /// What is shown: all that belongs to it is within this view.
    [[nodiscard]] virtual UIView& shownView() const = 0;
    /// Begins to take it away, choosing nothing. Nothing happens when that has begun.
    virtual void dismissPresented() = 0;
};
