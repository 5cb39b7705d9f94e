#include "Foundation/NSUserDefaults.h"

#include "Foundation/NSLog.h"
#include "FrameworkClass.h"

namespace {

class SuiteDefaults final : public NSUserDefaults {
public:
    [[nodiscard]] std::optional<PropertyList> objectForKey(std::string_view key) const override {
        const AutoreleasePool pool;
        return send<"-[NSUserDefaults objectForKey:]", std::optional<PropertyList>>(*this, key);
    }

    [[nodiscard]] std::optional<std::string> stringForKey(std::string_view key) const override {
        const AutoreleasePool pool;
        return send<"-[NSUserDefaults stringForKey:]", std::optional<std::string>>(*this, key);
    }

    void setObject(const PropertyList& value, std::string_view key) override {
        if (!canBeKept(PropertyList::Dictionary{{std::string(key), value}})) {
            NSLog("A text that is not plain UTF-8 cannot be kept as a preference: %@", key);
            return;
        }
        const AutoreleasePool pool;
        send<"-[NSUserDefaults setObject:forKey:]", void>(*this, value, key);
    }

    void removeObjectForKey(std::string_view key) override {
        const AutoreleasePool pool;
        send<"-[NSUserDefaults removeObjectForKey:]", void>(*this, key);
    }

    [[nodiscard]] PropertyList::Dictionary dictionaryRepresentation() const override {
        const AutoreleasePool pool;
        return dictionaryOf(send<"-[NSUserDefaults dictionaryRepresentation]", id>(*this))
            .value_or(PropertyList::Dictionary());
    }

    void removePersistentDomainForName(std::string_view domainName) override {
        const AutoreleasePool pool;
        send<"-[NSUserDefaults removePersistentDomainForName:]", void>(*this, domainName);
    }

    bool synchronize() override { return send<"-[NSUserDefaults synchronize]", bool>(*this); }
};

const FrameworkClassOf<SuiteDefaults> frameworkClass("NSUserDefaults");

} // namespace

Ref<NSUserDefaults> NSUserDefaults::initWithSuiteName(std::string_view suiteName) {
    const AutoreleasePool pool;
    return makeObject<"-[NSUserDefaults initWithSuiteName:]", NSUserDefaults>(suiteName);
}
