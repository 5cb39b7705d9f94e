#include "alerts/AlertPresentationView.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "alerts/UIAlertControllerPeer.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <cmath>

namespace {

const Class classObject = Class::define<AlertPresentationView, PresentationView>("AlertPresentationView");

constexpr double edgeGap = 20; ///< the least between an alert and what it keeps away from
constexpr double firstScale = 1.2;
constexpr std::chrono::milliseconds openTime{400};
constexpr std::chrono::milliseconds closeTime{250};

} // namespace

AlertPresentationView::AlertPresentationView(UIViewController& controller)
    : PresentationView(controller),
      dimming_(make<UIView>()),
      alert_(retain(&dynamic_cast<AlertView&>(controller.view()))) {
    dimming_->setBackgroundColor(DesktopColor::system(SystemColor::ModalDimming));
    addSubview(dimming_);
    addSubview(alert_);
}

void AlertPresentationView::layoutSubviews() {
    PresentationView::layoutSubviews();
    dimming_->setFrame(bounds());
    const auto& size = bounds().size;
    const auto safe = peer().safeAreaInsets();
    const auto keyboard = Screen::current().keyboardHeight();
    const auto bottom = size.height - std::max(safe.bottom, keyboard) - edgeGap;
    const auto top = safe.top + edgeGap;
    const auto height = std::min(alert_->fullHeight(), std::max(0.0, bottom - top));
    const auto middle = (size.height - keyboard) / 2;
    const auto scale = peer().traits().displayScale;
    const auto y =
        std::round(std::clamp(middle - height / 2, top, std::max(top, bottom - height)) * scale) / scale;
    alert_->peer().setBounds({{}, {AlertLayout::width, height}});
    alert_->setCenter({size.width / 2, y + height / 2});
}

void AlertPresentationView::show(double scale, double alpha) {
    dimming_->setAlpha(alpha);
    alert_->setAlpha(alpha);
    alert_->peer().setTransform(AffineTransform::scale(scale));
}

void AlertPresentationView::showReadyToOpen() {
    show(firstScale, 0);
}

void AlertPresentationView::showOpened() {
    show(1, 1);
}

void AlertPresentationView::showClosed() {
    show(1, 0);
}

AnimationGroup::Course AlertPresentationView::openingCourse() const {
    return {.duration = openTime, .curve = AnimationCurve::system()};
}

AnimationGroup::Course AlertPresentationView::closingCourse() const {
    return {.duration = closeTime};
}

std::string AlertPresentationView::title() const {
    const auto shown = controller();
    return shown ? shown->peer().title() : "";
}

/// The one that is set off by its type, which cancels, or the only one.
std::vector<Presented::Action> AlertPresentationView::actions() const {
    std::vector<Action> actions;
    const auto isOnly = alert_->buttons().size() == 1;
    for (const auto& button : alert_->buttons()) {
        const auto& action = *button->action();
        const auto cancels = action.style() == UIAlertActionStyle::Cancel;
        actions.push_back({.title = action.title(),
                           .symbol = {},
                           .destructive = action.style() == UIAlertActionStyle::Destructive,
                           .disabled = false,
                           .frame = button->peer().convertToScreen(button->bounds()),
                           .cancels = cancels,
                           .isPreferred = cancels || isOnly});
    }
    return actions;
}

std::optional<Presented::Details> AlertPresentationView::details() const {
    const auto shown = controller();
    if (!shown)
        return std::nullopt;
    return Details{.controllerClass = shown->isa().name(),
                   .detail = peerOf<UIAlertControllerPeer>(*shown).message().value_or(""),
                   .symbol = {},
                   .style = "alert",
                   .swipeDismissable = false,
                   .items = {},
                   .barItem = {},
                   .fields = fields(),
                   .urls = {},
                   .popoverSource = {}};
}

UIView& AlertPresentationView::shownView() const {
    return *alert_;
}

void AlertPresentationView::dismissPresented() {
    if (const auto shown = controller())
        peerOf<UIAlertControllerPeer>(*shown).chooseCancel();
}
