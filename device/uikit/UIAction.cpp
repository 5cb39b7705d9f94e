#include "UIKit/UIAction.h"

#include "FrameworkClass.h"

namespace {

class SystemAction final : public UIAction {
public:
    void setAttributes(UIMenuElementAttributes attributes) override {
        send<"-[UIAction setAttributes:]", void>(*this, attributes);
    }
};

const FrameworkClassOf<SystemAction> frameworkClass("UIAction");

} // namespace

Ref<UIAction> UIAction::actionWithTitle(std::string_view title, const Ref<UIImage>& image,
                                        const std::optional<std::string>& identifier, Handler handler) {
    return sendToClass<"+[UIAction actionWithTitle:image:identifier:handler:]", Ref<UIAction>>(
        title, image, identifier, handler);
}
