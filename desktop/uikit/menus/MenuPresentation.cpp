#include "menus/MenuPresentation.h"

#include "AnimationGroup.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "controls/UIControlPeer.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

const Class classObject = Class::define<MenuPresentation, UIView>("MenuPresentation");

constexpr auto edgeDistance = 8.0; ///< of the panel from the screen's edges
constexpr auto sourceDistance = 4.0;
constexpr auto closedScale = 0.2;
constexpr auto openTime = std::chrono::milliseconds(400);
constexpr auto closeTime = std::chrono::milliseconds(250);

} // namespace

CGRect MenuPresentation::frameFor(CGSize size, const CGRect& source, const CGRect& bounds) {
    const auto opensLeftward = CGRectGetMidX(source) > CGRectGetMidX(bounds);
    const auto wanted = opensLeftward ? CGRectGetMaxX(source) - size.width : source.origin.x;
    const auto least = bounds.origin.x + edgeDistance;
    const auto x =
        std::clamp(wanted, least, std::max(least, CGRectGetMaxX(bounds) - edgeDistance - size.width));
    const auto top = bounds.origin.y + edgeDistance;
    const auto bottom = CGRectGetMaxY(bounds) - edgeDistance;
    const auto below = CGRectGetMaxY(source) + sourceDistance;
    const auto above = source.origin.y - sourceDistance;
    const auto opensBelow = size.height <= bottom - below || bottom - below >= above - top;
    const auto height = std::min(size.height, std::max(0.0, opensBelow ? bottom - below : above - top));
    return CGRectMake(x, opensBelow ? below : above - height, size.width, height);
}

Ref<MenuPresentation> MenuPresentation::open(const Ref<DesktopMenu>& menu, const UIView& source,
                                             Closing closing) {
    auto& window = *source.peer().window();
    const auto place = source.peer().convertTo(window, source.bounds());
    auto presentation = make<MenuPresentation>(menu, place, std::move(closing));
    AnimationGroup::runWithoutAnimation([&] {
        presentation->setFrame(window.bounds());
        window.addSubview(presentation);
        presentation->peer().layoutIfNeeded();
        presentation->showOpened(false);
    });
    Screen::current().presentations().add(*presentation, *presentation);
    AnimationGroup::run({.duration = openTime, .curve = AnimationCurve::system()},
                        [&presentation] { presentation->showOpened(true); }, {});
    return presentation;
}

MenuPresentation::MenuPresentation(const Ref<DesktopMenu>& menu, const CGRect& source, Closing closing)
    : content_(menu),
      source_(source),
      closing_(std::move(closing)),
      surroundings_(make<UIControl>()),
      menu_(make<MenuView>(*menu, [this](const Ref<DesktopAction>& action) { close(action); })) {
    setAutoresizingMask(UIViewAutoresizing::FlexibleWidth | UIViewAutoresizing::FlexibleHeight);
    peerOf<UIControlPeer>(*surroundings_).addHandler(UIControlEvents::TouchDown, [this] { close(nullptr); });
    addSubview(surroundings_);
    addSubview(menu_);
}

void MenuPresentation::layoutSubviews() {
    UIView::layoutSubviews();
    surroundings_->setFrame(bounds());
    const auto room = UIEdgeInsetsInsetRect(bounds(), peer().safeAreaInsets());
    const auto frame = frameFor({MenuView::width, menu_->fullHeight()}, source_, room);
    menu_->peer().setBounds({{}, frame.size});
    menu_->setCenter({CGRectGetMidX(frame), CGRectGetMidY(frame)});
}

std::string MenuPresentation::title() const {
    return content_->title();
}

std::vector<Presented::Action> MenuPresentation::actions() const {
    std::vector<Action> actions;
    for (const auto& row : menu_->rows()) {
        const auto& action = *row->action();
        const auto image = dynamicCast<DesktopImage>(action.image());
        actions.push_back({.title = action.title(),
                           .symbol = image ? image->symbolName() : "",
                           .destructive = action.isDestructive(),
                           .disabled = action.isDisabled(),
                           .frame = row->peer().convertToScreen(row->bounds())});
    }
    return actions;
}

void MenuPresentation::showOpened(bool opened) {
    const auto center = menu_->layer().peer().position();
    const auto scale = opened ? 1 : closedScale;
    const auto towardsSource = [scale](double from, double to) { return (to - from) * (1 - scale); };
    menu_->peer().setTransform(AffineTransform::translation(towardsSource(center.x, CGRectGetMidX(source_)),
                                                            towardsSource(center.y, CGRectGetMaxY(source_)))
                                   .after(AffineTransform::scale(scale)));
    menu_->setAlpha(opened ? 1 : 0);
}

void MenuPresentation::close(const Ref<DesktopAction>& action) {
    if (std::exchange(isClosing_, true))
        return;
    const auto kept = retain(this);
    setUserInteractionEnabled(false);
    Screen::current().presentations().remove(*this);
    if (closing_)
        closing_();
    AnimationGroup::run(
        {.duration = closeTime}, [this] { showOpened(false); },
        [kept, action](bool finished) {
            kept->peer().removeFromSuperview();
            if (finished && action)
                action->perform();
        });
}
