#include "screen/RandomLayers.h"

#include "DesktopBezierPath.h"
#include "DesktopColor.h"
#include "UIKit/UILabel.h"
#include "views/UIViewPeer.h"

#include <array>
#include <cmath>

RandomLayers::RandomLayers(UIView& root, unsigned seed) : root_(root), random_(seed) {
    constexpr auto viewsAtFirst = 12;
    for (auto count = 0; count < viewsAtFirst; ++count)
        addView();
}

void RandomLayers::change() {
    switch (choice(8)) {
    case 0:
        addView();
        return;
    case 1:
        removeView();
        return;
    case 2:
        reorder();
        return;
    case 3:
        setPlace(any());
        return;
    case 4:
        animate(any());
        return;
    case 5:
        setText(any());
        return;
    default:
        setLook(any());
        break;
    }
}

double RandomLayers::number(double from, double to) {
    return std::uniform_real_distribution(from, to)(random_);
}

bool RandomLayers::chance(double probability) {
    return number(0, 1) < probability;
}

std::size_t RandomLayers::choice(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
}

UIView& RandomLayers::any() {
    return views_.empty() ? root_ : *views_[choice(views_.size())];
}

void RandomLayers::addView() {
    const Ref<UIView> view = chance(0.3) ? Ref<UIView>(make<UILabel>()) : make<UIView>();
    setText(*view);
    setPlace(*view);
    for (auto count = choice(6); count > 0; --count)
        setLook(*view);
    auto& superview = chance(0.5) ? root_ : any();
    superview.addSubview(view);
    views_.push_back(view);
}

void RandomLayers::removeView() {
    if (views_.empty())
        return;
    const auto view = views_[choice(views_.size())];
    view->peer().removeFromSuperview();
    std::erase_if(views_, [&view](const auto& other) { return other->peer().isDescendantOf(*view); });
}

void RandomLayers::reorder() {
    auto& view = any();
    if (auto* const superview = view.peer().superview(); superview != nullptr && &view != &root_)
        superview->peer().insertSubview(retain(&view), choice(superview->peer().subviews().size()));
}

void RandomLayers::setPlace(UIView& view) {
    if (&view == &root_)
        return;
    const auto places = chance(0.5) ? 1.0 : 8.0; // whole points, or parts of pixels
    const auto snapped = [places](double value) { return std::round(value * places) / places; };
    auto& peer = view.peer();
    peer.setTransform({});
    view.setFrame(CGRectMake(snapped(number(-10, 70)), snapped(number(-10, 70)), snapped(number(0, 60)),
                             snapped(number(0, 40))));
    if (chance(0.2))
        peer.setTransform({.a = number(0.5, 1.2), .b = number(-0.4, 0.4), .c = number(-0.4, 0.4), .d = 1});
}

void RandomLayers::animate(UIView& view) {
    UIView::animateWithDuration(number(0, 1), 0, UIViewAnimationOptions::None,
                                [&] {
                                    setPlace(view);
                                    setLook(view);
                                },
                                {});
}

void RandomLayers::setText(UIView& view) {
    static constexpr std::array texts{"", "Row", "A text that is cut short", "gjpqÅ"};
    if (auto* const label = dynamic_cast<UILabel*>(&view))
        label->setText(texts[choice(4)]);
}

void RandomLayers::setLook(UIView& view) {
    auto& layer = view.layer().peer();
    const ColorComponents color{number(0, 1), number(0, 1), number(0, 1), chance(0.6) ? 1 : number(0, 1)};
    switch (choice(12)) {
    case 0:
        view.setBackgroundColor(chance(0.2) ? nullptr : DesktopColor::fixed(color));
        return;
    case 1:
        layer.setNumber(LayerProperty::CornerRadius, chance(0.3) ? 0 : number(0, 25));
        return;
    case 2:
        layer.setColor(LayerProperty::BorderColor, color);
        layer.setNumber(LayerProperty::BorderWidth, chance(0.3) ? 0 : number(0, 5));
        return;
    case 3:
        layer.setNumber(LayerProperty::ShadowOpacity, chance(0.5) ? 0 : number(0, 1));
        layer.setNumber(LayerProperty::ShadowRadius, number(0, 6));
        return;
    case 4:
        view.setAlpha(chance(0.6) ? 1 : number(0, 1));
        return;
    case 5:
        layer.masksToBounds = chance(0.5);
        return;
    case 6:
        layer.continuousCorners = chance(0.5);
        return;
    case 7:
        layer.roundTop = chance(0.7);
        layer.roundBottom = chance(0.7);
        return;
    case 8:
        layer.hidden = &view != &root_ && chance(0.2);
        return;
    case 9:
        layer.backdrop = chance(0.5) ? std::nullopt : std::optional(Backdrop{number(0, 24), number(0.5, 2)});
        return;
    case 10:
        layer.keepsPicture = &view != &root_ && chance(0.5);
        return;
    default:
        view.layer().setShadowPath(
            chance(0.5) ? nullptr : UIBezierPath::bezierPathWithRoundedRect(CGRectMake(0, 0, 30, 20), 6));
        break;
    }
}
