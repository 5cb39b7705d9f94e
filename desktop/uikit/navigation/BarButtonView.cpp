#include "navigation/BarButtonView.h"

#include "DesktopFont.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"
#include "views/UIViewPeer.h"

#include <cmath>

namespace {

const Class classObject = Class::define<BarButtonView, BarControl>("BarButtonView");

constexpr auto titleSize = 17.0;
constexpr auto symbolSize = 21.0; ///< points; bars show symbols larger than texts do

Ref<UIImage> barImage(const Ref<UIImage>& image) {
    const auto known = dynamicCast<DesktopImage>(image);
    if (!known || known->symbolName().empty())
        return image;
    const auto larger = DesktopImage::symbol(known->symbolName(), symbolSize);
    return larger ? larger->imageWithRenderingMode(known->renderingMode()) : image;
}

std::string nameOf(const DesktopBarButtonItem::Content& content) {
    if (!content.title.empty())
        return content.title;
    const auto image = dynamicCast<DesktopImage>(content.image);
    return image ? image->symbolName() : "";
}

} // namespace

BarButtonView::BarButtonView(const Ref<DesktopBarButtonItem>& item) : item_(item) {
    const auto& shows = item_->content();
    if (shows.image) {
        image_ = make<UIImageView>();
        image_->setImage(barImage(shows.image));
        content().addSubview(image_);
    } else {
        label_ = make<UILabel>();
        label_->setText(shows.title);
        label_->setFont(
            DesktopFont::font(titleSize, shows.emphasised ? FontWeight::Semibold : FontWeight::Regular));
        content().addSubview(label_);
    }
    peer().setAccessibility(
        {.label = nameOf(shows), .value = {}, .role = AccessibilityRole::Button, .isElement = true});
    peerOf<UIControlPeer>(*this).addHandler(UIControlEvents::TouchUpInside, [this] { item_->perform(); });
    item_->setObserver([button = Weak<BarButtonView>(this)] {
        if (const auto living = button.strong())
            living->updateTint();
    });
    updateTint();
}

UIView& BarButtonView::shown() const {
    return image_ ? static_cast<UIView&>(*image_) : *label_;
}

double BarButtonView::contentWidth() const {
    return std::ceil(shown().peer().sizeThatFits({}).width);
}

void BarButtonView::updateTint() {
    peer().setTintColor(item_->tintColor());
}

void BarButtonView::layoutSubviews() {
    BarControl::layoutSubviews();
    if (label_)
        label_->setTextColor(peer().tintColor());
    const auto size = shown().peer().sizeThatFits({});
    shown().setFrame(CGRectMake((bounds().size.width - size.width) / 2,
                                (bounds().size.height - size.height) / 2, size.width, size.height));
}

void BarButtonView::openMenu() {
    const auto menu = dynamicCast<DesktopMenu>(item_->content().menu);
    if (!menu || peer().window() == nullptr)
        return;
    setHeld(true);
    menu_ = MenuPresentation::open(menu, *this, [button = Weak<BarButtonView>(this)] {
        if (const auto living = button.strong())
            living->setHeld(false);
    });
}

bool BarButtonView::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    openMenu();
    return BarControl::beginTrackingWithTouch(touch, event);
}

bool BarButtonView::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    if (const auto menu = menu_.strong())
        menu->menuView().fingerMoved(touch.locationInView(menu->menuView()));
    return BarControl::continueTrackingWithTouch(touch, event);
}

void BarButtonView::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    if (const auto menu = menu_.strong())
        menu->menuView().fingerLifted(touch.locationInView(menu->menuView()));
    BarControl::endTrackingWithTouch(touch, event);
}

void BarButtonView::cancelTrackingWithEvent(UIEvent* event) {
    if (const auto menu = menu_.strong())
        menu->menuView().fingerGone();
    BarControl::cancelTrackingWithEvent(event);
}
