#pragma once

#include "Foundation/PropertyList.h"
#include "ObjectiveC/Ref.h"

#include <functional>
#include <memory>
#include <variant>
#include <vector>

/// A block that takes and answers nothing. Never null, and never an empty function.
using MessageBlock = std::shared_ptr<const std::function<void()>>;

/// One argument or result of a message that is sent by its selector's text: nothing, a value (text, numbers
/// and booleans travel as the property-list value that they are), an object, a list of objects or a block.
using MessageValue =
    std::variant<std::monostate, PropertyList, Ref<NSObject>, std::vector<Ref<NSObject>>, MessageBlock>;
