#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/NSObject.h"

#include <optional>
#include <string_view>

/// One row of a page, or the head of a group of rows, described by named properties.
class PSSpecifier : public NSObject {
public:
    /// Nothing when the row has no such property.
    [[nodiscard]] virtual std::optional<PropertyList> propertyForKey(std::string_view key) const = 0;

    /// Whom the row's messages go to, the page as a rule; empty once it is gone.
    [[nodiscard]] virtual Ref<NSObject> target() const = 0;
};
