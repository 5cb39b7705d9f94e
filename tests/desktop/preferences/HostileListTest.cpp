#include "Foundation/NSUserDefaults.h"
#include "cells/RowsFixture.h"
#include "navigation/UINavigationControllerPeer.h"
#include "views/UILabelPeer.h"

namespace {

using Texts = std::vector<std::string>;

class HostileListTest : public RowsFixture {
protected:
    [[nodiscard]] static std::string about(const std::string& what) {
        return std::string(bundlePath) + "/Rows.plist: item 1: " + what;
    }

    [[nodiscard]] std::optional<std::string> titleOf(const std::string& id) const {
        return peerOf<UILabelPeer>(cellPeer(id).textLabel()).text();
    }
};

} // namespace

TEST_F(HostileListTest, AnUnknownCellIsAPlainRow) {
    writeList({row("PSFancyCell", "a")});
    show();
    EXPECT_EQ(titleOf("a"), "Row a");
    EXPECT_EQ(log(), Texts{about("there is no cell 'PSFancyCell'; a plain row stands for it.")});
}

TEST_F(HostileListTest, AnImageThatIsNoneIsLeftOut) {
    device.write(std::string(bundlePath) + "/broken.png", "no image");
    writeList({row("PSLinkCell", "a", text("icon", "broken.png"))});
    show();
    EXPECT_FALSE(cellPeer("a").imageView().image());
    EXPECT_EQ(log(), Texts{about("'icon' names broken.png, which is no image.")});
}

TEST_F(HostileListTest, APageMayLeadToItself) {
    writeList({row("PSLinkCell", "a", text("detail", "ListedPage"))});
    show();
    tap("a");
    settle();
    const auto& stack = peerOf<UINavigationControllerPeer>(*navigation_).stack();
    ASSERT_EQ(stack.size(), 2U);
    EXPECT_NE(stack.back(), page_);
    EXPECT_EQ(stack.back()->peer().title(), "Row a");
}

TEST_F(HostileListTest, ATextThatTheTableLacksIsShownAsItIs) {
    device.write(std::string(bundlePath) + "/en.lproj/Rows.strings",
                 R"("Row a" = "Translated"; "Sub" = "Below"; "T" = "Title"; "Hint" = "Type here";)");
    writeList(
        {row("PSEditTextCell", "a", text("placeholder", "Hint")), row("PSEditTextCell", "b"),
         keptRow("PSSegmentCell", "c", texts("validValues", {"1", "2"}) + texts("validTitles", {"T", "U"})),
         text("cell", "PSGroupCell") + text("id", "g") + text("footerText", "Sub")});
    show();
    EXPECT_EQ(titleOf("a"), "Translated");
    EXPECT_EQ(fieldOf("a").fieldPlaceholder(), "Type here");
    EXPECT_EQ(titleOf("b"), "Row b");
    EXPECT_EQ(elementsOf("c"), (Texts{"Title=0", "U=0"}));
    EXPECT_EQ(specifier("g").textForKey("footerText"), "Below");
}

TEST_F(HostileListTest, AValueChangedElsewhereShowsWhenThePageIsShownAgain) {
    writeList({keptRow("PSTitleValueCell", "a", text("default", "old")), keptRow("PSEditTextCell", "b")});
    show();
    navigation_->pushViewController(make<UIViewController>(), false);
    settle();
    const auto suite = NSUserDefaults::initWithSuiteName(domain);
    suite->setObject("new", "a");
    suite->setObject("typed", "b");
    peerOf<UINavigationControllerPeer>(*navigation_).pop(false);
    settle();
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text(), "new");
    EXPECT_EQ(fieldOf("b").fieldText(), "typed");
}
