#include "FrameworkClass.h"

#include <utility>

namespace {

constinit const FrameworkClass* firstClass = nullptr;

} // namespace

FrameworkClass::FrameworkClass(const char* name, std::initializer_list<Overridable> overridables)
    : name_(name),
      overridables_(overridables),
      next_(std::exchange(firstClass, this)) {}

const FrameworkClass* FrameworkClass::named(std::string_view name) {
    const auto* found = firstClass;
    while (found != nullptr && found->name_ != name)
        found = found->next_;
    return found;
}
