#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UIBarButtonItem.h"

#include <functional>
#include <string>

/// A button of a navigation bar, as the bar reads it: a title or an image, a menu or an action. Immutable but
/// for its tint.
class DesktopBarButtonItem final : public UIBarButtonItem {
public:
    struct Content {
        std::string title;            ///< shown when there is no image
        Ref<UIImage> image;           ///< may be empty
        Ref<UIMenu> menu;             ///< opened when it is tapped; may be empty
        std::function<void()> action; ///< run when it is tapped and there is no menu; may be empty
        Weak<NSObject> target;        ///< gets the selector then; may be empty
        std::string selector;
        bool emphasised = false; ///< as a bar's "Done" is
    };

    explicit DesktopBarButtonItem(Content content) : content_(std::move(content)) {}

    [[nodiscard]] const Content& content() const { return content_; }

    [[nodiscard]] const Ref<UIColor>& tintColor() const { return tintColor_; }

    /// Does what the item does when it is tapped; nothing when that is to open a menu.
    void perform();

    /// Called when the tint has changed; empty for nobody.
    void setObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    // UIBarButtonItem:
    void setTintColor(const Ref<UIColor>& color) override;

private:
    Content content_;
    Ref<UIColor> tintColor_;
    std::function<void()> observer_;
};
