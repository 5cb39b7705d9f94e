#pragma once

#include "UIKit/UIColor.h"
#include "UIKit/UIImage.h"
#include "UIKit/UIViewController.h"

#include <optional>
#include <string>
#include <string_view>

/// A page that introduces something: an image, a title and a text in the middle, and below them a list of
/// items, each with an image of its own. Its contents scroll where they are higher than the page. The items
/// are views of the class "OBBulletedListItem".
class OBWelcomeController : public UIViewController {
public:
    OBWelcomeController();

    /// \param detailText the text below the title, if any
    /// \param icon a picture above the title; empty for none
    [[nodiscard]] static Ref<OBWelcomeController> initWithTitle(std::string_view title,
                                                                const std::optional<std::string>& detailText,
                                                                const Ref<UIImage>& icon);
    /// \param symbolName of the system's symbol above the title, which is shown in the view's tint; none when
    ///     there is no such symbol
    [[nodiscard]] static Ref<OBWelcomeController> initWithTitle(std::string_view title,
                                                                const std::optional<std::string>& detailText,
                                                                std::string_view symbolName);

    /// Adds an item to the end of the list. \param image at its side; empty for none
    void addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                      const Ref<UIImage>& image);
    /// \param tintColor of the item; the view's own tint when it is empty
    void addBulletedListItemWithTitle(std::string_view title, std::string_view description,
                                      const Ref<UIImage>& image, const Ref<UIColor>& tintColor);

    /// What the items are in, each in its order; empty when the page has none.
    [[nodiscard]] Ref<UIView> bulletedList() const;
};
