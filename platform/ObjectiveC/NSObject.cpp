#include "ObjectiveC/NSObject.h"

#include "ObjectiveC/Class.h"
#include "ObjectiveC/ClassTable.h"

#include <array>
#include <cstdio>

namespace {

const Class classObject = Class::define<NSObject>("NSObject");

} // namespace

std::string NSObject::description() const {
    std::array<char, 32> address{};
    std::snprintf(address.data(), address.size(), "%p", static_cast<const void*>(this));
    return "<" + isa().name() + ": " + address.data() + ">";
}

const Class& NSObject::isa() const {
    return ClassTable::shared().ofInstance(*this);
}
