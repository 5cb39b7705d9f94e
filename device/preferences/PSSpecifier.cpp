#include "Preferences/PSSpecifier.h"

#include "FrameworkClass.h"

namespace {

class SystemSpecifier final : public PSSpecifier {
public:
    [[nodiscard]] std::optional<PropertyList> propertyForKey(std::string_view key) const override {
        const AutoreleasePool pool;
        return send<"-[PSSpecifier propertyForKey:]", std::optional<PropertyList>>(*this, key);
    }

    [[nodiscard]] Ref<NSObject> propertyObjectForKey(std::string_view key) const override {
        const AutoreleasePool pool;
        return send<"-[PSSpecifier propertyForKey:]", Ref<NSObject>>(*this, key);
    }

    [[nodiscard]] Ref<NSObject> target() const override {
        return send<"-[PSSpecifier target]", Ref<NSObject>>(*this);
    }
};

const FrameworkClassOf<SystemSpecifier> frameworkClass("PSSpecifier");

} // namespace
