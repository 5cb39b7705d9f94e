#include "EntryPage.h"

#include "EntryList.h"
#include "Foundation/NSBundle.h"
#include "SpecifierList.h"

PSListController::Specifiers EntryPage::specifiers() {
    if (cachedSpecifiers().empty()) {
        if (const auto folder = NSBundle::bundleWithPath(EntryList::folder))
            setCachedSpecifiers(SpecifierList::read(*folder, name_, *this).specifiers);
    }
    return cachedSpecifiers();
}
