#include "cxBannerController.h"

#include "ObjectiveC/Class.h"

namespace {

constexpr auto listName = "Banner";

const Class classObject = Class::define<cxBannerController, cxCollectDynamicSpecifiers>("cxBannerController");

} // namespace

PSListController::Specifiers cxBannerController::specifiers() {
    if (cachedSpecifiers().empty()) {
        setCachedSpecifiers(loadSpecifiersFromPlistName(listName, *this));
        collectDynamicSpecifiersFromArray(cachedSpecifiers());
    }
    return cachedSpecifiers();
}
