#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

/// The upper part of a welcome page: an image, a title and a text, one below the other in the middle. Made by
/// the page's view.
class OBHeaderView final : public UIView {
public:
    struct Content {
        std::string title;
        std::string detail; ///< may be empty
        Ref<UIImage> image; ///< a picture, or a symbol, which is shown in the view's tint; may be empty
    };

    OBHeaderView();

    void setContent(const Content& content);

    [[nodiscard]] const Content& content() const { return content_; }

    /// With the space above, in points.
    [[nodiscard]] double heightForWidth(double width) const;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] CGRect imageFrame(double width) const;
    [[nodiscard]] CGRect titleFrame(double width) const;
    [[nodiscard]] CGRect detailFrame(double width) const;

    Content content_;
    Ref<UIImageView> image_;
    Ref<UILabel> title_;
    Ref<UILabel> detail_;
};
