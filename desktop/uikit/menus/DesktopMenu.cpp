#include "menus/DesktopMenu.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIMenu>("UIMenu");

} // namespace

Ref<UIMenu> UIMenu::menuWithTitle(std::string_view title, const std::vector<Ref<UIAction>>& children) {
    std::vector<Ref<DesktopAction>> actions;
    for (const auto& child : children) {
        if (auto action = dynamicCast<DesktopAction>(child))
            actions.push_back(std::move(action));
    }
    return make<DesktopMenu>(std::string(title), std::move(actions));
}
