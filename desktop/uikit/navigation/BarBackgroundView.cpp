#include "navigation/BarBackgroundView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<BarBackgroundView, UIView>("BarBackgroundView");

constexpr Backdrop material{.blurRadius = 20, .saturation = 1.8};

} // namespace

BarBackgroundView::BarBackgroundView() : blur_(make<UIView>()), hairline_(make<UIView>()) {
    setUserInteractionEnabled(false);
    blur_->layer().peer().backdrop = material;
    blur_->setBackgroundColor(DesktopColor::system(SystemColor::BarBackground));
    hairline_->setBackgroundColor(DesktopColor::system(SystemColor::BarHairline));
    // Masks, so that the parts keep up with an animated width.
    blur_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    addSubview(blur_);
    hairline_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleTopMargin);
    addSubview(hairline_);
}

void BarBackgroundView::layoutSubviews() {
    UIView::layoutSubviews();
    const auto& size = bounds().size;
    blur_->setFrame(bounds());
    hairline_->setFrame(CGRectMake(0, size.height, size.width, 1 / peer().traits().displayScale));
}
