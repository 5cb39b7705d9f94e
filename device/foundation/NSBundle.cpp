#include "Foundation/NSBundle.h"

#include "FrameworkClass.h"

namespace {

class SystemBundle final : public NSBundle {
public:
    [[nodiscard]] std::string localizedStringForKey(std::string_view key, std::optional<std::string> value,
                                                    std::optional<std::string> table) const override {
        const AutoreleasePool pool;
        return send<"-[NSBundle localizedStringForKey:value:table:]", std::string>(*this, key, value, table);
    }
};

const FrameworkClassOf<SystemBundle> frameworkClass("NSBundle");

} // namespace

Ref<NSBundle> NSBundle::mainBundle() {
    const AutoreleasePool pool;
    return sendToClass<"+[NSBundle mainBundle]", Ref<NSBundle>>();
}
