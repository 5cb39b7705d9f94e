#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/Ref.h"

#include <variant>

/// One argument or result of a message that is sent by its selector's text: nothing, a value (text, numbers
/// and booleans travel as the property-list value that they are) or an object.
using MessageValue = std::variant<std::monostate, PropertyList, Ref<NSObject>>;
