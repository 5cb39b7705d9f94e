#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "ShownShape.h"
#include "UIKit/UINavigationItem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class FilePicker;

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
        bool cancels = false;
        bool isPreferred = false; ///< what the return key chooses
    };

    /// One entry of a list that tells the user something.
    struct Item {
        std::string title;
        std::string description;
        std::string symbol; ///< the name of its image; empty when it has none or a picture
        Ref<UIColor> tint;  ///< empty for the tint that is around it
        bool tappable = false;
    };

    struct Field {
        std::string placeholder;
        std::string text;
        bool isFirstResponder = false;
    };

    /// What there is to tell of sheets and alerts beside what menus have too.
    struct Details {
        std::string controllerClass;
        std::string detail; ///< the text below the title; empty when there is none
        std::string symbol; ///< above the title; empty when there is none
        std::string style;  ///< "pageSheet", "formSheet", "popover" or "alert"
        bool swipeDismissable = false;
        std::vector<Item> items;
        Ref<UINavigationItem> barItem; ///< what its navigation bar shows; empty when it has none
        std::vector<Field> fields;
        std::vector<std::string> urls;       ///< of what is shared
        std::optional<CGRect> popoverSource; ///< what a popover points to, in points of the screen
    };

    virtual ~Presented() = default;

    /// "menu", "alert", "sheet" and so on.
    [[nodiscard]] virtual std::string_view kind() const = 0;
    /// Empty when it has none.
    [[nodiscard]] virtual std::string title() const = 0;
    [[nodiscard]] virtual std::vector<Action> actions() const = 0;

    /// Nothing for what is neither a sheet nor an alert.
    [[nodiscard]] virtual std::optional<Details> details() const = 0;

    /// What waits there for files to be chosen; null when nothing does.
    [[nodiscard]] virtual FilePicker* filePicker() const = 0;

    /// What is shown: all that belongs to it is within this view.
    [[nodiscard]] virtual UIView& shownView() const = 0;
    /// Begins to take it away, choosing nothing. Nothing happens when that has begun.
    virtual void dismissPresented() = 0;

    /// Whether it goes when the application is left. Sheets and alerts are still there on the way back.
    [[nodiscard]] virtual bool isTransient() const = 0;

    /// What has stepped back for it, with black around; nothing when nothing has.
    [[nodiscard]] virtual std::optional<ShownShape> steppedBack() const = 0;

    /// The keyboard covers another height of the screen. Runs among the changes that the keyboard animates.
    virtual void keyboardHeightDidChange() = 0;
};
