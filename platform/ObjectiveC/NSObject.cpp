#include "ObjectiveC/NSObject.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/ClassTable.h"

#include <array>
#include <cstdio>
#include <span>

namespace {

const Class classObject = Class::define<NSObject>("NSObject");

} // namespace

bool NSObject::init() {
    return true;
}

std::string NSObject::description() const {
    std::array<char, 32> address{};
    std::snprintf(address.data(), address.size(), "%p", static_cast<const void*>(this));
    return "<" + isa().name() + ": " + address.data() + ">";
}

const Class& NSObject::isa() const {
    return ClassTable::shared().ofInstance(*this);
}

bool NSObject::respondsToSelector(std::string_view selector) const {
    return isa().instanceMethod(selector) != nullptr;
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
