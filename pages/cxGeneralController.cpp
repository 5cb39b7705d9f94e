#include "cxGeneralController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "General";

const Class classObject = Class::define<cxGeneralController, PSListController>("cxGeneralController");

} // namespace

PSListController::Specifiers cxGeneralController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}
