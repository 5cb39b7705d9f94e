#include "presentation/SheetPresentationView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "controllers/UIViewControllerPeer.h"
#include "controls/UIControlPeer.h"
#include "presentation/Presentation.h"
#include "presentation/SheetPanGestureRecognizer.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "scrolling/ScrollMotion.h"

#include <algorithm>
#include <utility>

namespace {

const Class classObject = Class::define<SheetPresentationView, PresentationView>("SheetPresentationView");

/// How far cards that resist are drawn at the most, as a part of their way out.
constexpr double modalGive = 0.25;
constexpr double upwardGive = 0.015;
constexpr double roundPart = 1.53; ///< radii from which on the edge beside a corner is straight
constexpr std::chrono::milliseconds springBackTime{300};

} // namespace

SheetPresentationView::SheetPresentationView(UIViewController& controller)
    : PresentationView(controller),
      backing_(make<UIView>()),
      sides_(make<UIView>()),
      dimming_(make<UIControl>()),
      card_(make<UIView>()),
      style_(controller.peer().modalPresentationStyle()) {
    backing_->setBackgroundColor(UIColor::blackColor());
    backing_->setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    sides_->setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
    backing_->addSubview(sides_);
    dimming_->setBackgroundColor(DesktopColor::system(SystemColor::ModalDimming));
    card_->setClipsToBounds(true);
    card_->layer().setCornerRadius(SheetGeometry::cornerRadius);
    card_->layer().peer().continuousCorners = true;
    card_->layer().peer().keepsPicture = true;
    addSubview(dimming_);
    addSubview(card_);
    card_->addSubview(retain(&controller.view()));
    card_->peer().addGestureRecognizer(make<SheetPanGestureRecognizer>(*this));
    peerOf<UIControlPeer>(*dimming_).addHandler(UIControlEvents::TouchUpInside, [this] {
        if (!geometry().fillsPhone())
            dismissPresented();
    });
}

// What it covers.

void SheetPresentationView::didCover() {
    const auto covered = beneath();
    card_->layer().peer().roundBottom = geometry().idiom == Idiom::Pad;
    if (style_ == UIModalPresentationStyle::FormSheet)
        card_->peer().setTraitOverride([](Traits& traits) { traits.compactWidth = true; });
    if (!mayStepBack() || !geometry().coveredStepsBack())
        return;
    auto& window = *peer().window();
    backing_->setFrame(window.bounds());
    window.peer().insertSubview(backing_, 0);
    coveredCorner_ = covered->layer().cornerRadius();
    coveredClips_ = covered->layer().peer().masksToBounds;
    coveredRoundsBottom_ = std::exchange(covered->layer().peer().roundBottom, false); // that the card covers
    covered->setClipsToBounds(true);
    covered->layer().peer().continuousCorners = true;
    covered->layer().peer().keepsPicture = true;
}

void SheetPresentationView::willUncover() {
    if (backing_->peer().superview() == nullptr)
        return;
    const auto covered = beneath();
    backing_->peer().removeFromSuperview();
    AnimationGroup::runWithoutAnimation([&] {
        covered->peer().setTransform({});
        covered->layer().setCornerRadius(coveredCorner_);
        covered->layer().peer().roundBottom = coveredRoundsBottom_;
        covered->setClipsToBounds(coveredClips_);
        covered->layer().peer().keepsPicture = false;
    });
}

std::optional<ShownShape> SheetPresentationView::steppedBack() const {
    const auto covered = beneath();
    if (!covered || backing_->peer().superview() == nullptr)
        return std::nullopt;
    return covered->layer().peer().shownShapeOnScreen();
}

// Where everything is.

SheetGeometry SheetPresentationView::geometry() const {
    const auto* const content = page().content();
    return {.idiom = peer().traits().idiom,
            .size = bounds().size,
            .safeArea = peer().safeAreaInsets(),
            .keyboardHeight = Screen::current().keyboardHeight(),
            .contentHeight = content != nullptr ? content->sheetHeight() : std::nullopt};
}

void SheetPresentationView::layoutSubviews() {
    PresentationView::layoutSubviews();
    dimming_->setFrame(bounds());
    placeCard();
    place();
}

void SheetPresentationView::placeCard() {
    auto frame = geometry().cardFrame(style_);
    frame.origin.y -= stretch_;
    if (geometry().idiom == Idiom::Phone)
        frame.size.height += stretch_;
    card_->peer().setBounds({{}, frame.size});
    card_->setCenter({CGRectGetMidX(frame), CGRectGetMidY(frame)});
    for (const auto& view : card_->peer().subviews())
        view->setFrame(card_->bounds());
    const auto belowCorners = UIEdgeInsets{.top = SheetGeometry::cornerRadius * roundPart};
    const auto beneathCard = UIEdgeInsetsInsetRect(frame, belowCorners);
    sides_->peer().setBounds({{}, beneathCard.size});
    sides_->setCenter({CGRectGetMidX(beneathCard), CGRectGetMidY(beneathCard)});
}

void SheetPresentationView::setOpenness(double openness) {
    openness_ = openness;
    if (std::exchange(stretch_, 0) != 0)
        placeCard();
    place();
}

void SheetPresentationView::place() {
    const auto places = geometry();
    const auto away = 1 - openness_;
    const auto wayOut = places.wayOut(card_->layer().peer().untransformedFrame());
    dimming_->setAlpha(openness_);
    for (const auto& view : {card_, sides_})
        view->peer().setTransform(AffineTransform::translation(0, away * wayOut));
    const auto covered = beneath();
    if (!covered || backing_->peer().superview() == nullptr)
        return;
    covered->peer().setTransform(places.steppedBack(covered->layer().peer().untransformedFrame(), openness_));
    const auto corner = cornerWhileClosed();
    covered->layer().setCornerRadius(corner + openness_ * (SheetGeometry::cornerRadius - corner));
}

/// What fills the screen looks as round as the glass, which cuts its corners off.
double SheetPresentationView::cornerWhileClosed() const {
    const auto covered = beneath();
    const auto fillsScreen =
        covered && covered->layer().peer().untransformedFrame() == Screen::current().bounds();
    return fillsScreen ? std::max(coveredCorner_, Screen::current().cornerRadius()) : coveredCorner_;
}

AnimationGroup::Course SheetPresentationView::openingCourse() const {
    return {.duration = std::chrono::round<std::chrono::nanoseconds>(
                std::chrono::duration<double>(AnimationCurve::systemDuration)),
            .curve = AnimationCurve::system()};
}

// The finger.

bool SheetPresentationView::isModal() const {
    const auto shown = controller();
    return !shown || shown->peer().isModalInPresentation();
}

void SheetPresentationView::drag(double distance) {
    const auto wayOut = geometry().wayOut(geometry().cardFrame(style_));
    const auto banded = [wayOut](double part, double by) { return ScrollMotion::banded(by, part * wayOut); };
    AnimationGroup::runWithoutAnimation([&] {
        const auto down = distance > 0 && isModal() ? banded(modalGive, distance) : std::max(0.0, distance);
        openness_ = 1 - down / wayOut;
        stretch_ = distance < 0 ? banded(upwardGive, -distance) : 0;
        placeCard();
        place();
        card_->peer().layoutIfNeeded();
    });
}

void SheetPresentationView::letGo(double distance, double speed) {
    const auto wayOut = geometry().wayOut(geometry().cardFrame(style_));
    if (!isModal() && SheetGeometry::letGoDismisses(distance / wayOut, speed / wayOut)) {
        dismissPresented();
        return;
    }
    AnimationGroup::run({.duration = springBackTime, .curve = AnimationCurve::easeOut()},
                        [this] { setOpenness(1); }, {});
}

void SheetPresentationView::dismissPresented() {
    const auto shown = controller();
    if (shown && !isModal() && shown->peer().presentation() != nullptr)
        shown->peer().presentation()->dismiss(true, {});
}

// What it tells of itself.

std::optional<Presented::Details> SheetPresentationView::details() const {
    auto details = page().details();
    details.style = style_ == UIModalPresentationStyle::FormSheet ? "formSheet" : "pageSheet";
    details.swipeDismissable = !isModal();
    details.fields = fields();
    return details;
}
