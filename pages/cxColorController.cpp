#include "cxColorController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Color";

const Class classObject = Class::define<cxColorController, PSListController>("cxColorController");

} // namespace

PSListController::Specifiers cxColorController::specifiers() {
    if (cachedSpecifiers().empty())
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
    return cachedSpecifiers();
}
