#include "navigation/NavigationPageView.h"

#include "CALayerPeer.h"
#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "PainterBands.h"
#include "views/UIViewPeer.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

const Class classObject = Class::define<NavigationPageView, UIView>("NavigationPageView");

constexpr auto greatestDim = 0.1;
constexpr auto shadowWidth = 10.0;
constexpr auto shadowOpacity = 0.3;

/// Darkens towards the page's edge.
class EdgeShadowPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    void drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) override {
        const auto& size = bounds.size;
        QLinearGradient shade(traits.rightToLeft ? size.width : 0, 0, traits.rightToLeft ? 0 : size.width, 0);
        constexpr auto steps = 4;
        for (auto step = 0; step <= steps; ++step) { // rises with the square, as the edge of a blur does
            const auto part = static_cast<double>(step) / steps;
            shade.setColorAt(part,
                             QColor::fromRgbF(0, 0, 0, static_cast<float>(shadowOpacity * part * part)));
        }
        const QRectF all(0, 0, size.width, size.height);
        PainterBands::paint(painter, all, [&] { painter.fillRect(all, shade); });
    }
};

class EdgeShadowView final : public UIView {
public:
    EdgeShadowView() : UIView(std::make_unique<EdgeShadowPeer>()) { setUserInteractionEnabled(false); }
};

} // namespace

NavigationPageView::NavigationPageView(const Ref<UIView>& page)
    : page_(page),
      dimming_(make<UIView>()),
      shadow_(make<EdgeShadowView>()) {
    dimming_->setUserInteractionEnabled(false);
    dimming_->setBackgroundColor(UIColor::blackColor());
    dimming_->setAlpha(0);
    shadow_->setAlpha(0);
    shadow_->layer().peer().keepsPicture = true;
    for (const auto& view : {shadow_, page_, dimming_})
        addSubview(view);
}

void NavigationPageView::layoutSubviews() {
    UIView::layoutSubviews();
    page_->setFrame(bounds());
    dimming_->setFrame(bounds());
    peer().place(*shadow_, CGRectMake(-shadowWidth, 0, shadowWidth, bounds().size.height));
}

void NavigationPageView::placeAlone() {
    page_->layer().peer().keepsPicture = false;
    place(0, 0, 0);
}

void NavigationPageView::placeAbove(double away) {
    page_->layer().peer().keepsPicture = true;
    place(away, 1 - away, 0);
}

void NavigationPageView::placeBeneath(double covered) {
    page_->layer().peer().keepsPicture = true;
    place(-parallax * covered, 0, greatestDim * covered);
}

void NavigationPageView::place(double shift, double shadow, double dim) {
    peer().setTransform(AffineTransform::translation(shift * peer().rightward() * bounds().size.width, 0));
    shadow_->setAlpha(shadow);
    dimming_->setAlpha(dim);
}

void NavigationPageView::releasePage() {
    page_->layer().peer().keepsPicture = false;
    if (page_->peer().superview() == this)
        page_->peer().removeFromSuperview();
}
