#include "presentation/PopoverPresentationView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "controllers/UIViewControllerPeer.h"
#include "controls/UIControlPeer.h"
#include "presentation/Presentation.h"

#include <QPainterPath>

namespace {

const Class classObject = Class::define<PopoverPresentationView, PresentationView>("PopoverPresentationView");

constexpr double shadowRadius = 32;
constexpr double shadowOpacity = 0.2;
constexpr std::chrono::milliseconds openTime{250};

} // namespace

PopoverPresentationView::PopoverPresentationView(UIViewController& controller,
                                                 const Ref<DesktopPopoverPresentationController>& popover,
                                                 CGSize size)
    : PresentationView(controller),
      popover_(popover),
      size_(size) {
    peer().setTraitOverride([](Traits& traits) {
        traits.elevated = true;
        traits.compactWidth = true;
    });
    shadow_->layer().setShadowRadius(shadowRadius);
    shadow_->layer().setShadowOpacity(shadowOpacity);
    shadow_->layer().setShadowOffset({});
    panel_->setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    panel_->setClipsToBounds(true);
    panel_->layer().setCornerRadius(PopoverGeometry::cornerRadius);
    panel_->layer().peer().continuousCorners = true;
    panel_->addSubview(retain(&controller.view()));
    for (const auto& view : std::initializer_list<Ref<UIView>>{surroundings_, shadow_, arrow_, panel_})
        addSubview(view);
    peerOf<UIControlPeer>(*surroundings_).addHandler(UIControlEvents::TouchUpInside, [this] {
        dismissPresented();
    });
}

CGRect PopoverPresentationView::source() const {
    if (popover_->sourceView())
        lastSource_ = popover_->sourceOnScreen();
    return lastSource_;
}

void PopoverPresentationView::layoutSubviews() {
    PresentationView::layoutSubviews();
    surroundings_->setFrame(bounds());
    const PopoverGeometry geometry{.room = UIEdgeInsetsInsetRect(bounds(), peer().safeAreaInsets()),
                                   .source = source()};
    const auto place = geometry.place(size_);
    panel_->setFrame(place.panel);
    for (const auto& view : panel_->peer().subviews())
        view->setFrame(panel_->bounds());
    arrow_->setFrame(place.arrow);
    arrow_->setSide(place.side);
    shadow_->setFrame(place.panel);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0, 0, place.panel.size.width, place.panel.size.height),
                           PopoverGeometry::cornerRadius, PopoverGeometry::cornerRadius);
    shadow_->layer().peer().shadowPath = outline;
}

void PopoverPresentationView::setAlphaOfContent(double alpha) {
    for (const auto& view : std::initializer_list<Ref<UIView>>{shadow_, arrow_, panel_})
        view->setAlpha(alpha);
}

AnimationGroup::Course PopoverPresentationView::openingCourse() const {
    return {.duration = openTime};
}

AnimationGroup::Course PopoverPresentationView::closingCourse() const {
    return {.duration = openTime};
}

std::optional<Presented::Details> PopoverPresentationView::details() const {
    auto details = page().details();
    details.style = "popover";
    details.swipeDismissable = false;
    details.fields = fields();
    details.popoverSource = source();
    return details;
}

void PopoverPresentationView::dismissPresented() {
    const auto shown = controller();
    if (shown && shown->peer().presentation() != nullptr)
        shown->peer().presentation()->dismiss(true, {});
}
