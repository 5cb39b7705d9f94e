#include "ObjectiveC/NSObject.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"

#include <span>

bool NSObject::init() {
    return true;
}

bool NSObject::respondsToSelector(std::string_view selector) const {
    return isa().instanceMethod(selector) != nullptr;
}

std::string NSStringFromClass(const NSObject& instance) {
    return instance.isa().name();
}

MessageValue NSObject::performSelector(std::string_view selector,
                                       std::initializer_list<MessageValue> arguments) {
    const auto* const method = isa().instanceMethod(selector);
    if (method == nullptr) {
        NSLog("-[%@ %@]: unrecognized selector sent to %@", isa().name(), selector, description());
        return {};
    }
    return method->invoke(*this, std::span(arguments.begin(), arguments.size()));
}
