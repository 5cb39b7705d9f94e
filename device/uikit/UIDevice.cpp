#include "UIKit/UIDevice.h"

#include "FrameworkClass.h"

namespace {

class SystemDevice final : public UIDevice {
public:
    [[nodiscard]] UIUserInterfaceIdiom userInterfaceIdiom() const override {
        return send<"-[UIDevice userInterfaceIdiom]", UIUserInterfaceIdiom>(*this);
    }
};

const FrameworkClassOf<SystemDevice> frameworkClass("UIDevice");

} // namespace

Ref<UIDevice> UIDevice::currentDevice() {
    const AutoreleasePool pool;
    return sendToClass<"+[UIDevice currentDevice]", Ref<UIDevice>>();
}
