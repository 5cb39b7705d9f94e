#include "Foundation/NSMutableDictionary.h"

#include "ObjectiveC/Class.h"

#include <functional>
#include <map>
#include <string>

namespace {

const Class dictionaryClass = Class::define<NSMutableDictionary>("NSMutableDictionary");

class DesktopMutableDictionary final : public NSMutableDictionary {
public:
    [[nodiscard]] Ref<NSObject> objectForKey(std::string_view key) const override {
        const auto found = objects_.find(key);
        return found != objects_.end() ? found->second : nullptr;
    }

    [[nodiscard]] std::vector<Ref<NSObject>> allValues() const override {
        std::vector<Ref<NSObject>> values;
        values.reserve(objects_.size());
        for (const auto& [key, object] : objects_)
            values.push_back(object);
        return values;
    }

    void setObject(const Ref<NSObject>& object, std::string_view key) override {
        objects_.insert_or_assign(std::string(key), object);
    }

    void removeAllObjects() override { objects_.clear(); }

private:
    std::map<std::string, Ref<NSObject>, std::less<>> objects_;
};

} // namespace

Ref<NSMutableDictionary> NSMutableDictionary::dictionary() {
    return make<DesktopMutableDictionary>();
}
