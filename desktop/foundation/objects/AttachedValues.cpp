#include "ObjectiveC/AttachedValues.h"

#include "Foundation/NSLog.h"
#include "objects/ObjectPeer.h"

#include <mutex>
#include <string>
#include <utility>

namespace {

std::mutex attachedValuesMutex;

bool isObject(const AttachedValue& value) {
    return std::holds_alternative<Ref<NSObject>>(value);
}

} // namespace

void setAttachedValue(NSObject& owner, std::string_view key, AttachedValue value, Retention retention) {
    if (isObject(value) && retention == Retention::CopyNonatomic) {
        NSLog("An object cannot be copied: nothing is attached under %@", std::string(key));
        return;
    }
    AttachedValue old; // released after the lock, since its end may attach values itself
    const std::scoped_lock lock(attachedValuesMutex);
    auto& values = ObjectPeer::of(owner).attachedValues;
    if (std::holds_alternative<std::monostate>(value)) {
        if (auto node = values.extract(std::string(key)))
            old = std::move(node.mapped());
    } else {
        auto& slot = values.try_emplace(std::string(key)).first->second;
        old = std::exchange(slot, std::move(value));
    }
}

AttachedValue attachedValue(const NSObject& owner, std::string_view key) {
    const std::scoped_lock lock(attachedValuesMutex);
    const auto& values = ObjectPeer::of(owner).attachedValues;
    const auto found = values.find(key);
    return found != values.end() ? found->second : AttachedValue();
}
