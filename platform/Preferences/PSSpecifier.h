#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/NSObject.h"

#include <optional>
#include <string_view>

/// The property that names a row among those of its page.
constexpr std::string_view PSIDKey = "id";

/// The property that holds the cell that shows the row, once there is one.
constexpr std::string_view PSTableCellKey = "cellObject";

/// One row of a page, or the head of a group of rows, described by named properties.
class PSSpecifier : public NSObject {
public:
    /// Nothing when the row has no such property.
    [[nodiscard]] virtual std::optional<PropertyList> propertyForKey(std::string_view key) const = 0;

    /// The same for a property that is an object and not a value. Empty when the row has no such property.
    [[nodiscard]] virtual Ref<NSObject> propertyObjectForKey(std::string_view key) const = 0;

    /// Whom the row's messages go to, the page as a rule; empty once it is gone.
    [[nodiscard]] virtual Ref<NSObject> target() const = 0;
};
