#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

/// One thing that a welcome page tells of: an image in the view's tint and, beside it, a title above a text.
/// Made by the page's controller.
class OBBulletedListItem final : public UIView {
public:
    struct Content {
        std::string title;
        std::string description; ///< may be empty
        Ref<UIImage> image;      ///< may be empty
    };

    explicit OBBulletedListItem(const Content& content);

    [[nodiscard]] const Content& content() const { return content_; }

    /// Whether a tap on it does something.
    [[nodiscard]] bool isTappable() const;

    /// In points, with all lines of the texts.
    [[nodiscard]] double heightForWidth(double width) const;

    // UIView:
    void layoutSubviews() override;

private:
    class Peer;

    [[nodiscard]] double textHeight(double width) const;

    Content content_;
    Ref<UIImageView> image_;
    Ref<UILabel> title_;
    Ref<UILabel> description_; ///< empty without a text
};
