#include "HomeIcon.h"

#include "DesktopFont.h"
#include "DesktopImage.h"
#include "ObjectiveC/Class.h"
#include "controls/UIControlPeer.h"
#include "screen/Screen.h"

#include <memory>
#include <utility>

namespace {

const Class classObject = Class::define<HomeIcon, UIControl>("HomeIcon");

constexpr double labelSize = 12;
constexpr double labelGap = 5;
constexpr double labelOverhang = 12; ///< how far the name may reach beyond the icon, to each side
constexpr double labelHeight = 15;
constexpr double pressedAlpha = 0.6;

/// Dims the icon while a finger is on it.
class HomeIconPeer final : public UIControlPeer {
public:
    HomeIconPeer(const std::string& name, std::function<void()> open) {
        addHandler(UIControlEvents::TouchUpInside, std::move(open));
        setAccessibility({.label = name, .value = "", .role = AccessibilityRole::Button, .isElement = true});
    }

    // UIControlPeer:
    void stateDidChange() override { subviews().front()->setAlpha(isHighlighted() ? pressedAlpha : 1); }
};

} // namespace

HomeIcon::HomeIcon(const std::string& name, const std::string& iconPath, std::function<void()> open)
    : UIControl(std::make_unique<HomeIconPeer>(name, std::move(open))),
      image_(make<UIImageView>()),
      label_(make<UILabel>()) {
    image_->setImage(DesktopImage::named(iconPath, Screen::current().traits().displayScale));
    image_->setContentMode(UIViewContentMode::ScaleToFill);
    label_->setText(name);
    label_->setFont(DesktopFont::font(labelSize));
    label_->setTextColor(UIColor::whiteColor());
    label_->setTextAlignment(NSTextAlignment::Center);
    addSubview(image_);
    addSubview(label_);
}

void HomeIcon::setIconShown(bool shown) {
    image_->peer().setHidden(!shown);
}

void HomeIcon::setNameShown(bool shown) {
    label_->setAlpha(shown ? 1 : 0);
}

double HomeIcon::side() const {
    return peer().traits().idiom == Idiom::Phone ? phoneSide : padSide;
}

CGRect HomeIcon::iconFrame() const {
    return CGRectMake((bounds().size.width - side()) / 2, 0, side(), side());
}

void HomeIcon::layoutSubviews() {
    UIControl::layoutSubviews();
    image_->setFrame(iconFrame());
    label_->setFrame(
        CGRectMake(-labelOverhang, side() + labelGap, bounds().size.width + 2 * labelOverhang, labelHeight));
}
