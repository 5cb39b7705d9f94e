#include "cxOrganizeController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Organize";

const Class classObject =
    Class::define<cxOrganizeController, cxCollectDynamicSpecifiers>("cxOrganizeController");

} // namespace

PSListController::Specifiers cxOrganizeController::specifiers() {
    if (cachedSpecifiers().empty()) {
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
        collectDynamicSpecifiersFromArray(cachedSpecifiers());
    }
    return cachedSpecifiers();
}
