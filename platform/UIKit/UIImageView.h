#pragma once

#include "UIKit/UIImage.h"
#include "UIKit/UIView.h"

/// Shows an image, laid in its bounds as its content mode says. Takes no touches unless told to.
class UIImageView : public UIView {
public:
    UIImageView();

    /// Empty when there is none.
    [[nodiscard]] Ref<UIImage> image() const;
    void setImage(const Ref<UIImage>& image);

protected:
    explicit UIImageView(std::unique_ptr<UIViewPeer> peer);
};
