#include "CellFixture.h"

#include "ObjectiveC/Class.h"
#include "PSListControllerPeer.h"
#include "SpecifierViews.h"

namespace {

const Class pageClass = Class::define<CellPage, PSListController>(
    "CellPage", {method<"openController:", &CellPage::openController>()});

} // namespace

Ref<DesktopSpecifier> CellFixture::row(Properties properties) const {
    properties.insert_or_assign("cellClass", className_);
    return make<DesktopSpecifier>(std::move(properties), *page);
}

Ref<PSTableCell> CellFixture::cellFor(const Properties& properties) const {
    return makeCellFor(*row(properties), "cell");
}

Ref<PSTableCell> CellFixture::showRow(const Properties& properties) {
    page->setCachedSpecifiers({row(properties)});
    navigation->pushViewController(page, false);
    show(navigation);
    return dynamicCast<PSTableCell>(peerOf<PSListControllerPeer>(*page).rows().front().view);
}
