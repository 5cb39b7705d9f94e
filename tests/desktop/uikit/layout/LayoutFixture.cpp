#include "layout/LayoutFixture.h"

namespace {

class SizedPeer final : public UIViewPeer {
public:
    SizedPeer(std::optional<double> width, std::optional<double> height) : width_(width), height_(height) {}

    void setWidth(double width) {
        width_ = width;
        setNeedsConstraintLayout();
    }

    // UIViewPeer:
    [[nodiscard]] std::optional<double> intrinsicWidth() const override { return width_; }

    [[nodiscard]] std::optional<double> intrinsicHeight() const override { return height_; }

private:
    std::optional<double> width_;
    std::optional<double> height_;
};

} // namespace

SizedView::SizedView(std::optional<double> width, std::optional<double> height)
    : UIView(std::make_unique<SizedPeer>(width, height)) {}

void SizedView::setIntrinsicWidth(double width) {
    peerOf<SizedPeer>(*this).setWidth(width);
}

LayoutFixture::LayoutFixture() {
    host->peer().setTraitOverride([](Traits& traits) { traits.displayScale = 2; });
}

Ref<SizedView> LayoutFixture::add(std::optional<double> width, std::optional<double> height) {
    return addTo(*host, width, height);
}

Ref<SizedView> LayoutFixture::addTo(UIView& superview, std::optional<double> width,
                                    std::optional<double> height) {
    auto view = make<SizedView>(width, height);
    view->peer().setFrameGiven(false);
    superview.addSubview(view);
    return view;
}

NSLayoutConstraintPeer& LayoutFixture::constrain(NSLayoutConstraintPeer::Terms terms) {
    constraints.push_back(NSLayoutConstraintPeer::makeConstraint(std::move(terms)));
    NSLayoutConstraint::activateConstraints({constraints.back()});
    return constraints.back()->peer();
}

NSLayoutConstraintPeer& LayoutFixture::equal(const LayoutAnchor& first, const LayoutAnchor& second,
                                             double constant) {
    return constrain({.first = first, .second = second, .constant = constant});
}

NSLayoutConstraintPeer& LayoutFixture::equal(const LayoutAnchor& first, double constant) {
    return constrain({.first = first, .second = std::nullopt, .constant = constant});
}

void LayoutFixture::fill(UIView& view, double inset) {
    using enum LayoutAttribute;
    equal({view, Leading}, {*host, Leading}, inset);
    equal({view, Top}, {*host, Top}, inset);
    equal({view, Trailing}, {*host, Trailing}, -inset);
    equal({view, Bottom}, {*host, Bottom}, -inset);
}
