#include "cxLabelController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Label";

const Class classObject = Class::define<cxLabelController, PSListController>("cxLabelController");

} // namespace

PSListController::Specifiers cxLabelController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}
