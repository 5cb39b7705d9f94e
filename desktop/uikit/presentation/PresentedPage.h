#pragma once

#include "UIKit/UIViewController.h"
#include "presentation/SheetContent.h"
#include "screen/Presented.h"

#include <string>
#include <string_view>

class FilePicker;

/// What there is to tell of a controller that is presented: of itself, or of the page that it shows when it
/// is a navigation controller. Made for the moment.
class PresentedPage {
public:
    /// \param controller empty for one that is gone
    explicit PresentedPage(Ref<UIViewController> controller);

    /// What scripts are told that it is.
    [[nodiscard]] std::string_view kind() const;
    /// Empty when it has none.
    [[nodiscard]] std::string title() const;
    /// Null when it waits for no files.
    [[nodiscard]] FilePicker* filePicker() const;
    /// Null when the page tells nothing of itself.
    [[nodiscard]] const SheetContent* content() const;
    /// All but what is told by what it is presented in: the style, whether it may be swiped away, where it
    /// points to, and the fields.
    [[nodiscard]] Presented::Details details() const;

private:
    [[nodiscard]] Ref<UINavigationItem> barItem() const;

    Ref<UIViewController> controller_;
    Ref<UIViewController> page_;
};
