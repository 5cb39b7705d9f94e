#pragma once

#include "ObjectiveC/NSObject.h"

#include <string_view>
#include <vector>

/// Objects by texts. Owns its objects.
class NSMutableDictionary : public NSObject {
public:
    /// A new one, empty.
    [[nodiscard]] static Ref<NSMutableDictionary> dictionary();

    /// Empty when there is none under the key.
    [[nodiscard]] virtual Ref<NSObject> objectForKey(std::string_view key) const = 0;

    /// In no particular order.
    [[nodiscard]] virtual std::vector<Ref<NSObject>> allValues() const = 0;

    /// In place of what is under the key.
    virtual void setObject(const Ref<NSObject>& object, std::string_view key) = 0;

    virtual void removeAllObjects() = 0;
};
