#include "EntryFixture.h"

#include "EntryList.h"
#include "PSListControllerPeer.h"

void EntryFixture::writeEntry(const std::string& name, const std::string& dictionary) const {
    device.write(std::string(EntryList::folder) + "/" + name + ".plist",
                 "<plist version=\"1.0\"><dict>" + dictionary + "</dict></plist>");
}

void EntryFixture::writeBundleEntry(const std::string& name, const std::string& bundle,
                                    const std::string& more) const {
    writeEntry(name,
               "<key>entry</key><dict><key>bundle</key><string>" + bundle + "</string>" + more + "</dict>");
}

void EntryFixture::writeListEntry(const std::string& name, int rows) const {
    std::string items;
    for (auto row = 0; row < rows; ++row)
        items += "<dict><key>cell</key><string>PSStaticTextCell</string><key>label</key><string>" +
                 std::to_string(row) + "</string></dict>";
    writeEntry(name, "<key>items</key><array>" + items + "</array>");
}

PaneEntry EntryFixture::entry(const std::string& name) {
    const auto found = EntryList::find(name);
    EXPECT_TRUE(found) << name;
    return found.value_or(PaneEntry());
}

std::vector<std::string> EntryFixture::labelsOf(const PSListController& page) {
    std::vector<std::string> labels;
    for (const auto& row : peerOf<PSListControllerPeer>(page).rows()) {
        if (row.cell != "PSGroupCell")
            labels.push_back(row.label);
    }
    return labels;
}
