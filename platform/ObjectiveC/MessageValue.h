#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/Ref.h"

#include <variant>
#include <vector>

/// One argument or result of a message that is sent by its selector's text: nothing, a value (text, numbers
/// and booleans travel as the property-list value that they are), an object or a list of objects.
using MessageValue = std::variant<std::monostate, PropertyList, Ref<NSObject>, std::vector<Ref<NSObject>>>;
