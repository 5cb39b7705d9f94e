#include "DesktopImage.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "screen/ShownScreen.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

ColorComponents backgroundOf(const UIView& view) {
    return view.layer().peer().color(LayerProperty::BackgroundColor);
}

ColorComponents resolved(const Ref<UIColor>& color) {
    return DesktopColor::resolve(color, Traits());
}

Ref<UIImageView> imageView(UIImageRenderingMode mode) {
    QImage square(40, 40, QImage::Format_ARGB32);
    square.fill(Qt::black);
    auto view = make<UIImageView>();
    view->setImage(make<DesktopImage>(square, 1.0)->imageWithRenderingMode(mode));
    return view;
}

std::uint64_t contentVersion(const UIView& view) {
    return view.layer().peer().contentVersion();
}

TEST(UIViewLooks, InheritsTraitsFromTheSuperview) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    const auto inner = ShownScreen::add(*view, CGRectMake(0, 0, 5, 5), red);
    view->peer().setTraitOverride([](Traits& traits) { traits.elevated = true; });
    EXPECT_TRUE(inner->peer().traits().elevated);
    EXPECT_FALSE(shown.window->peer().traits().elevated);
    EXPECT_EQ(inner->peer().traits().displayScale, 1);
}

TEST(UIViewLooks, ResolvesColoursAgainWhenTraitsChange) {
    ShownScreen shown;
    shown.screen.setStyle(UserInterfaceStyle::Dark);
    const auto view = make<UIView>();
    view->setBackgroundColor(DesktopColor::system(SystemColor::Background));
    EXPECT_EQ(backgroundOf(*view), systemColor(SystemColor::Background, Appearance::Light));
    shown.window->addSubview(view);
    EXPECT_EQ(backgroundOf(*view), systemColor(SystemColor::Background, Appearance::Dark));
    shown.window->peer().setTraitOverride([](Traits& traits) {
        traits.style = UserInterfaceStyle::Dark;
        traits.elevated = true;
    });
    EXPECT_EQ(backgroundOf(*view), systemColor(SystemColor::Background, Appearance::DarkElevated));
}

TEST(UIViewLooks, AnimatesNoColourThatAMoveInTheTreeChanges) {
    ShownScreen shown;
    shown.screen.setStyle(UserInterfaceStyle::Dark);
    const auto view = make<UIView>();
    view->setBackgroundColor(DesktopColor::system(SystemColor::Background));
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None, [&] { shown.window->addSubview(view); },
                                {});
    EXPECT_FALSE(view->layer().peer().isAnimating());
}

TEST(UIViewLooks, AnimatesABackgroundThatIsSet) {
    const ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None,
                                [&] { view->setBackgroundColor(DesktopColor::fixed(green)); }, {});
    EXPECT_EQ(backgroundOf(*view), green);
    EXPECT_EQ(view->layer().peer().shownValue(LayerProperty::BackgroundColor)[0], 1);
}

TEST(UIViewLooks, TakesABorderColourAsItLooksWhenItIsSet) {
    ShownScreen shown;
    const auto view = shown.add(CGRectMake(0, 0, 5, 5), red);
    view->layer().setBorderColor(DesktopColor::system(SystemColor::Label));
    shown.screen.setStyle(UserInterfaceStyle::Dark);
    EXPECT_EQ(view->layer().peer().color(LayerProperty::BorderColor),
              systemColor(SystemColor::Label, Appearance::Light));
}

TEST(UIViewLooks, HasTheNearestTint) {
    const TestDevice device;
    const auto outer = make<UIView>();
    const auto inner = make<UIView>();
    outer->addSubview(inner);
    EXPECT_EQ(resolved(inner->peer().tintColor()), systemColor(SystemColor::Blue, Appearance::Light));
    outer->peer().setTintColor(DesktopColor::fixed(red));
    EXPECT_EQ(resolved(inner->peer().tintColor()), red);
    inner->peer().setTintColor(DesktopColor::fixed(green));
    EXPECT_EQ(resolved(inner->peer().tintColor()), green);
    inner->peer().setTintColor(nullptr);
    EXPECT_EQ(resolved(inner->peer().tintColor()), red);
}

TEST(UIViewLooks, IsPaintedAgainInAnotherTintUnlessItHasItsOwn) {
    const TestDevice device;
    const auto outer = make<UIView>();
    const auto plain = imageView(UIImageRenderingMode::AlwaysTemplate);
    const auto tinted = imageView(UIImageRenderingMode::AlwaysTemplate);
    outer->addSubview(plain);
    outer->addSubview(tinted);
    tinted->peer().setTintColor(DesktopColor::fixed(green));
    const auto plainVersion = contentVersion(*plain);
    const auto tintedVersion = contentVersion(*tinted);
    outer->peer().setTintColor(DesktopColor::fixed(red));
    EXPECT_GT(contentVersion(*plain), plainVersion);
    EXPECT_EQ(contentVersion(*tinted), tintedVersion);
}

TEST(UIViewLooks, IsNotPaintedAgainInAnotherTintThatItDoesNotShow) {
    ShownScreen shown;
    const auto outer = shown.add(CGRectMake(0, 0, 40, 40), blue);
    const auto original = imageView(UIImageRenderingMode::AlwaysOriginal);
    original->setFrame(CGRectMake(0, 0, 20, 20));
    const auto label = make<UILabel>();
    label->setText("W");
    label->setFrame(CGRectMake(20, 20, 20, 20));
    const auto shape = imageView(UIImageRenderingMode::AlwaysTemplate);
    shape->setFrame(CGRectMake(30, 0, 10, 10));
    for (const auto& view : {Ref<UIView>(original), Ref<UIView>(label), Ref<UIView>(shape)})
        outer->addSubview(view);
    static_cast<void>(shown.compositor.render());
    outer->setTintColor(DesktopColor::fixed(red));
    EXPECT_EQ(shown.pixel(35, 5), QColor(Qt::red));
    const auto& damage = shown.compositor.lastDamage();
    EXPECT_TRUE(damage.contains(QPoint(35, 5)));
    EXPECT_FALSE(damage.contains(QPoint(10, 10)));
    EXPECT_FALSE(damage.contains(QPoint(30, 30)));
    EXPECT_FALSE(damage.contains(QPoint(10, 30)));
}

TEST(UIViewLooks, TellsItsOwnTintFromTheOneAboveIt) {
    const TestDevice device;
    const auto outer = make<UIView>();
    const auto inner = make<UIView>();
    outer->addSubview(inner);
    outer->setTintColor(DesktopColor::fixed(red));
    EXPECT_EQ(resolved(outer->peer().ownTintColor()), red);
    EXPECT_FALSE(inner->peer().ownTintColor());
    EXPECT_EQ(resolved(inner->peer().tintColor()), red);
}

TEST(UIViewLooks, PaintsTemplateImagesInTheNearestTint) {
    ShownScreen shown;
    const auto outer = shown.add(CGRectMake(0, 0, 40, 40), {.alpha = 0});
    const auto inner = ShownScreen::add(*outer, CGRectMake(0, 0, 40, 40), {.alpha = 0});
    const auto image = imageView(UIImageRenderingMode::AlwaysTemplate);
    image->setFrame(CGRectMake(0, 0, 40, 40));
    outer->setTintColor(DesktopColor::fixed(red));
    inner->addSubview(image);
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::red));
    inner->setTintColor(DesktopColor::fixed(green));
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::green));
    outer->setTintColor(DesktopColor::fixed(blue));
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::green));
    inner->setTintColor(nullptr);
    EXPECT_EQ(shown.pixel(20, 20), QColor(Qt::blue));
    image->peer().removeFromSuperview();
    shown.window->addSubview(image);
    EXPECT_EQ(shown.pixel(20, 20).blue(), 255);
    EXPECT_EQ(shown.pixel(20, 20).green(), 122);
}

TEST(UIViewLooks, IsGreyWhereItWouldBeTintedWhileItsTintIsDimmed) {
    const TestDevice device;
    const auto outer = make<UIView>();
    const auto plain = make<UIView>();
    const auto tinted = imageView(UIImageRenderingMode::AlwaysTemplate);
    outer->addSubview(plain);
    plain->addSubview(tinted);
    tinted->peer().setTintColor(DesktopColor::fixed(green));
    const auto grey = systemColor(SystemColor::Gray, Appearance::Light);
    const auto version = contentVersion(*tinted);
    outer->peer().setTintDimmed(true);
    EXPECT_EQ(resolved(plain->peer().tintColor()), grey);
    EXPECT_EQ(resolved(tinted->peer().tintColor()), grey);
    EXPECT_GT(contentVersion(*tinted), version);
    outer->peer().setTintDimmed(false);
    EXPECT_EQ(resolved(plain->peer().tintColor()), systemColor(SystemColor::Blue, Appearance::Light));
    EXPECT_EQ(resolved(tinted->peer().tintColor()), green);
}

} // namespace
