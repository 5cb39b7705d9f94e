#include "ListRows.h"

#include "PSListControllerPeer.h"

#include <gtest/gtest.h>

#include <algorithm>

ListRow rowOf(const PSListController& page, const std::string& id) {
    const auto rows = peerOf<PSListControllerPeer>(page).rows();
    const auto found = std::ranges::find(rows, id, &ListRow::id);
    EXPECT_NE(found, rows.end()) << id;
    return found == rows.end() ? ListRow() : *found;
}

UITableViewCell& cellOf(const PSListController& page, const std::string& id) {
    return dynamic_cast<UITableViewCell&>(*rowOf(page, id).view);
}

DesktopSpecifier& specifierOf(PSListController& page, const std::string& id) {
    return dynamic_cast<DesktopSpecifier&>(*page.specifierForID(id));
}
