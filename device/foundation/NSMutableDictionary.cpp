#include "Foundation/NSMutableDictionary.h"

#include "FrameworkClass.h"

namespace {

class SystemMutableDictionary final : public NSMutableDictionary {
public:
    [[nodiscard]] Ref<NSObject> objectForKey(std::string_view key) const override {
        const AutoreleasePool pool;
        return send<"-[NSDictionary objectForKey:]", Ref<NSObject>>(*this, key);
    }

    [[nodiscard]] std::vector<Ref<NSObject>> allValues() const override {
        const AutoreleasePool pool;
        return send<"-[NSDictionary allValues]", std::vector<Ref<NSObject>>>(*this);
    }

    void setObject(const Ref<NSObject>& object, std::string_view key) override {
        const AutoreleasePool pool;
        send<"-[NSMutableDictionary setObject:forKey:]", void>(*this, object, key);
    }

    void removeAllObjects() override {
        const AutoreleasePool pool;
        send<"-[NSMutableDictionary removeAllObjects]", void>(*this);
    }
};

const FrameworkClassOf<SystemMutableDictionary> frameworkClass("NSMutableDictionary");

} // namespace

Ref<NSMutableDictionary> NSMutableDictionary::dictionary() {
    const AutoreleasePool pool;
    return sendToClass<"+[NSMutableDictionary dictionary]", Ref<NSMutableDictionary>>();
}
