#include "UIKit/UILayoutGuide.h"

#include "FrameworkClass.h"

namespace {

class SystemLayoutGuide final : public UILayoutGuide {
public:
    [[nodiscard]] Ref<NSLayoutYAxisAnchor> topAnchor() const override {
        return send<"-[UILayoutGuide topAnchor]", Ref<NSLayoutYAxisAnchor>>(*this);
    }

    [[nodiscard]] Ref<NSLayoutYAxisAnchor> centerYAnchor() const override {
        return send<"-[UILayoutGuide centerYAnchor]", Ref<NSLayoutYAxisAnchor>>(*this);
    }
};

const FrameworkClassOf<SystemLayoutGuide> frameworkClass("UILayoutGuide");

} // namespace
