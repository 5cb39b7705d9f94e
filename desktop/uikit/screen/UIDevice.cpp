#include "UIKit/UIDevice.h"

#include "ObjectiveC/Class.h"
#include "screen/Screen.h"

#include <cstdint>

namespace {

class DesktopDevice final : public UIDevice {
public:
    // UIDevice:
    [[nodiscard]] UIUserInterfaceIdiom userInterfaceIdiom() const override {
        return Screen::current().traits().idiom == Idiom::Pad ? UIUserInterfaceIdiom::Pad
                                                              : UIUserInterfaceIdiom::Phone;
    }

    [[nodiscard]] std::int64_t idiomNumber() const { return static_cast<std::int64_t>(userInterfaceIdiom()); }
};

const Class classObject =
    Class::define<DesktopDevice>("UIDevice", {method<"userInterfaceIdiom", &DesktopDevice::idiomNumber>()});

} // namespace

Ref<UIDevice> UIDevice::currentDevice() {
    static const auto device = make<DesktopDevice>();
    return device;
}
