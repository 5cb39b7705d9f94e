#include "EntryPage.h"

#include "DesktopBundle.h"
#include "EntryList.h"
#include "specifiers/SpecifierList.h"

PSListController::Specifiers EntryPage::specifiers() {
    if (cachedSpecifiers().empty()) {
        if (const auto folder = DesktopBundle::withPath(EntryList::folder))
            setCachedSpecifiers(SpecifierList::read(*folder, name_, *this).specifiers);
    }
    return cachedSpecifiers();
}
