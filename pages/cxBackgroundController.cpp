#include "cxBackgroundController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Background";

const Class classObject =
    Class::define<cxBackgroundController, cxCollectDynamicSpecifiers>("cxBackgroundController");

} // namespace

PSListController::Specifiers cxBackgroundController::specifiers() {
    if (cachedSpecifiers().empty()) {
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
        collectDynamicSpecifiersFromArray(cachedSpecifiers());
    }
    return cachedSpecifiers();
}
