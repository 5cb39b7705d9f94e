#include "cxExtraController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Extra";

const Class classObject = Class::define<cxExtraController, PSListController>("cxExtraController");

} // namespace

PSListController::Specifiers cxExtraController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}
