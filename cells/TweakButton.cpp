#include "TweakButton.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<TweakButton, UIButton>(
    "TweakButton", {method<"identifier", &TweakButton::identifier>(),
                    method<"setIdentifier:", &TweakButton::setIdentifier>()});

} // namespace

void TweakButton::setIdentifier(const std::optional<std::string>& identifier) {
    identifier_ = identifier;
}
