#include "UIKit/UITapGestureRecognizer.h"

#include "FrameworkClass.h"

#include <string>

namespace {

class SystemTapGestureRecognizer final : public UITapGestureRecognizer {
public:
    [[nodiscard]] Ref<UIView> view() const override {
        return send<"-[UITapGestureRecognizer view]", Ref<UIView>>(*this);
    }
};

const FrameworkClassOf<SystemTapGestureRecognizer> frameworkClass("UITapGestureRecognizer");

} // namespace

Ref<UITapGestureRecognizer> UITapGestureRecognizer::initWithTarget(NSObject& target,
                                                                   std::string_view action) {
    return makeObject<"-[UITapGestureRecognizer initWithTarget:action:]", UITapGestureRecognizer>(
        target, sel_registerName(std::string(action).c_str()));
}
