#include "menus/DesktopAction.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIAction>("UIAction");

constexpr bool has(UIMenuElementAttributes attributes, UIMenuElementAttributes flag) {
    return (static_cast<unsigned>(attributes) & static_cast<unsigned>(flag)) != 0;
}

} // namespace

Ref<UIAction> UIAction::actionWithTitle(std::string_view title, const Ref<UIImage>& image,
                                        const std::optional<std::string>& identifier, Handler handler) {
    return make<DesktopAction>(std::string(title), image, identifier, std::move(handler));
}

bool DesktopAction::isDestructive() const {
    return has(attributes_, UIMenuElementAttributes::Destructive);
}

bool DesktopAction::isDisabled() const {
    return has(attributes_, UIMenuElementAttributes::Disabled);
}

void DesktopAction::perform() {
    const auto kept = retain(this);
    if (handler_)
        handler_(*this);
}
