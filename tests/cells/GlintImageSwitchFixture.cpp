#include "GlintImageSwitchFixture.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "views/UIViewPeer.h"

namespace {

const Class counterClass =
    Class::define<EventCounter>("EventCounter", {method<"valueChanged:", &EventCounter::valueChanged>()});

Ref<UIImageView> imageViewIn(const UIView& view, std::size_t index) {
    return dynamicCast<UIImageView>(view.peer().subviews().at(index));
}

bool isColor(const UIView& view, LayerProperty property, const Ref<UIColor>& color) {
    return view.layer().peer().color(property) == DesktopColor::resolve(color, view.peer().traits());
}

} // namespace

void EventCounter::valueChanged(const Ref<NSObject>& sender) {
    ++count;
    lastSender = sender;
}

GlintImageSwitchFixture::GlintImageSwitchFixture() {
    window->addSubview(control);
    control->setFrame(CGRectMake(origin.x, origin.y, 50, 30));
    control->addTarget(*events, "valueChanged:", UIControlEvents::ValueChanged);
    settle();
}

double GlintImageSwitchFixture::shownThumbLeft() const {
    const auto& layer = control->thumbView()->layer().peer();
    return layer.shownToSuperlayer()(layer.shownBounds()).origin.x;
}

double GlintImageSwitchFixture::shownThumbWidth() const {
    return control->thumbView()->layer().peer().shownBounds().size.width;
}

Ref<UIImageView> GlintImageSwitchFixture::onImageView() const {
    return imageViewIn(*control->backgroundView(), 0);
}

Ref<UIImageView> GlintImageSwitchFixture::offImageView() const {
    return imageViewIn(*control->backgroundView(), 1);
}

Ref<UIImageView> GlintImageSwitchFixture::thumbImageView() const {
    return imageViewIn(*control->thumbView(), 0);
}

void GlintImageSwitchFixture::expectTrackContents(bool on) const {
    EXPECT_EQ(onImageView()->layer().peer().number(LayerProperty::Opacity), on ? 1 : 0);
    EXPECT_EQ(control->onLabel()->layer().peer().number(LayerProperty::Opacity), on ? 1 : 0);
    EXPECT_EQ(offImageView()->layer().peer().number(LayerProperty::Opacity), on ? 0 : 1);
    EXPECT_EQ(control->offLabel()->layer().peer().number(LayerProperty::Opacity), on ? 0 : 1);
}

bool GlintImageSwitchFixture::borderIs(const Ref<UIColor>& color) const {
    return isColor(*control->backgroundView(), LayerProperty::BorderColor, color);
}

bool GlintImageSwitchFixture::shadowIs(const Ref<UIColor>& color) const {
    return isColor(*control->thumbView(), LayerProperty::ShadowColor, color);
}
