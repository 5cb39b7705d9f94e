#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "PageFixture.h"
#include "Preferences/PSSwitchTableCell.h"
#include "cells/PSControlTableCellPeer.h"
#include "cells/PSTableCellPeer.h"
#include "controls/UISwitchPeer.h"
#include "views/UILabelPeer.h"

namespace {

using namespace std::chrono_literals;
using PSTableCellTest = PageFixture;
using Texts = std::vector<std::string>;
using Edge = TableCaptionViews::Edge;

class OwnCell : public PSTableCell {
public:
    using PSTableCell::initWithStyle;

    [[nodiscard]] bool initWithStyle(UITableViewCellStyle style,
                                     const std::optional<std::string>& reuseIdentifier,
                                     PSSpecifier& specifier) override {
        ++made;
        return PSTableCell::initWithStyle(style, reuseIdentifier, specifier);
    }

    void refreshCellContentsWithSpecifier(PSSpecifier& specifier) override {
        PSTableCell::refreshCellContentsWithSpecifier(specifier);
        auto& title = peerOf<PSTableCellPeer>(*this).textLabel();
        title.setText("own " + *peerOf<UILabelPeer>(title).text());
    }

    static int made;
};

int OwnCell::made = 0;

/// A switch's row with a view of its own.
class OwnSwitchCell final : public PSSwitchTableCell {
public:
    using PSSwitchTableCell::initWithStyle;

    [[nodiscard]] bool initWithStyle(UITableViewCellStyle style,
                                     const std::optional<std::string>& reuseIdentifier,
                                     PSSpecifier& specifier) override {
        if (!PSSwitchTableCell::initWithStyle(style, reuseIdentifier, specifier))
            return false;
        contentView().addSubview(mark);
        return true;
    }

    Ref<UIView> mark = make<UIView>();
};

class RefusingCell : public PSTableCell {
public:
    using PSTableCell::initWithStyle;

    [[nodiscard]] bool initWithStyle(UITableViewCellStyle /*style*/,
                                     const std::optional<std::string>& /*reuseIdentifier*/,
                                     PSSpecifier& /*specifier*/) override {
        return false;
    }
};

/// A caption that is a third as high as it is wide.
class Banner : public UIView {
public:
    [[nodiscard]] bool initWithSpecifier(const Ref<PSSpecifier>& specifier) {
        title = specifier->propertyForKey("title");
        return UIView::init();
    }

    [[nodiscard]] double preferredHeightForWidth(double width) { return width / 3; }

    std::optional<PropertyList> title;
};

class NoCell : public NSObject {};

const Class ownCellClass = Class::define<OwnCell, PSTableCell>("CellTestOwnCell");
const Class ownSwitchCellClass = Class::define<OwnSwitchCell, PSSwitchTableCell>("CellTestOwnSwitchCell");
const Class refusingCellClass = Class::define<RefusingCell, PSTableCell>("CellTestRefusingCell");
const Class bannerClass = Class::define<Banner, UIView>(
    "CellTestBanner", {method<"initWithSpecifier:", &Banner::initWithSpecifier>(),
                       method<"preferredHeightForWidth:", &Banner::preferredHeightForWidth>()});
const Class noCellClass = Class::define<NoCell>("CellTestNoCell");

ColorComponents colorOf(const UILabel& label) {
    return DesktopColor::resolve(peerOf<UILabelPeer>(label).textColor(), Traits());
}

ColorComponents color(SystemColor role) {
    return systemColor(role, Appearance::Light);
}

} // namespace

TEST_F(PSTableCellTest, LinksHaveAChevronAndTheirValue) {
    writeList({keptRow("PSLinkCell", "a", text("default", "value")), row("PSLinkCell", "b"),
               row("PSLinkCell", "c", yes("hidesDisclosureIndicator"))});
    show();
    EXPECT_EQ(peerOf<UITableViewCellPeer>(cell("a")).accessoryType(),
              UITableViewCellAccessoryType::DisclosureIndicator);
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text(), "value");
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("b").detailTextLabel()).text(), std::nullopt);
    EXPECT_EQ(peerOf<UITableViewCellPeer>(cell("c")).accessoryType(), UITableViewCellAccessoryType::None);
}

TEST_F(PSTableCellTest, ButtonsAreTinted) {
    writeList({row("PSButtonCell", "a"), row("PSButtonCell", "b", yes("isDestructive")),
               row("PSButtonCell", "c", no("enabled")), row("PSLinkCell", "d")});
    show();
    EXPECT_EQ(colorOf(cellPeer("a").textLabel()), color(SystemColor::Blue));
    EXPECT_EQ(colorOf(cellPeer("b").textLabel()), color(SystemColor::Red));
    EXPECT_EQ(colorOf(cellPeer("c").textLabel()), color(SystemColor::TertiaryLabel));
    EXPECT_EQ(colorOf(cellPeer("d").textLabel()), color(SystemColor::Label));
}

TEST_F(PSTableCellTest, ValuesAreShownByTheirTitles) {
    const auto choices = value("validValues", "<array><integer>1</integer><integer>2</integer></array>") +
                         value("validTitles", "<array><string>One</string></array>");
    writeList({keptRow("PSTitleValueCell", "a", choices)});
    show();
    const auto shown = [this](const std::optional<PropertyList>& value) {
        peer().setValue(specifier("a"), value);
        return peerOf<UILabelPeer>(cellPeer("a").detailTextLabel()).text();
    };
    EXPECT_EQ(shown(1), "One");
    EXPECT_EQ(shown(2), "2");
    EXPECT_EQ(shown(3), "3");
    EXPECT_EQ(shown("text"), "text");
    EXPECT_EQ(shown(PropertyList::Array{1}), std::nullopt);
    EXPECT_EQ(shown(std::nullopt), std::nullopt);
}

TEST_F(PSTableCellTest, StaticTextsWrap) {
    writeList({text("cell", "PSStaticTextCell") + text("id", "a") + text("label", std::string(200, 'm')),
               row("PSStaticTextCell", "b")});
    show();
    EXPECT_GT(listRow("a").height, 100);
    EXPECT_EQ(listRow("b").height, 44);
}

TEST_F(PSTableCellTest, RowsMayNameTheirCellsClass) {
    writeList({row("PSLinkCell", "a", text("cellClass", "CellTestOwnCell")), row("PSLinkCell", "b")});
    OwnCell::made = 0;
    show();
    EXPECT_NE(dynamic_cast<OwnCell*>(&cell("a")), nullptr);
    EXPECT_EQ(dynamic_cast<OwnCell*>(&cell("b")), nullptr);
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "own Row a");
    EXPECT_EQ(listRow("a").cellClass, "CellTestOwnCell");
    EXPECT_EQ(OwnCell::made, 1);
}

TEST_F(PSTableCellTest, RowsMayNameAClassDerivedFromTheSwitchs) {
    writeList({keptRow("PSSwitchCell", "a", yes("default") + text("cellClass", "CellTestOwnSwitchCell"))});
    show();
    auto& own = dynamic_cast<OwnSwitchCell&>(cell("a"));
    EXPECT_EQ(own.mark->peer().superview(), &own.contentView());
    EXPECT_EQ(own.specifier().get(), &specifier("a"));
    const auto& control = peerOf<PSControlTableCellPeer>(own).control();
    EXPECT_TRUE(peerOf<UISwitchPeer>(dynamic_cast<UISwitch&>(*control)).isOn());
}

TEST_F(PSTableCellTest, ThePageHasTheTableOfItsCells) {
    writeList({row("PSLinkCell", "a")});
    show();
    EXPECT_TRUE(cell("a").peer().isDescendantOf(*page_->table()));
}

TEST_F(PSTableCellTest, ACellOfANamedClassServesItsRowAlone) {
    std::vector<std::string> items(60);
    for (std::size_t number = 0; number < items.size(); ++number)
        items[number] = row("PSLinkCell", std::to_string(number), text("cellClass", "CellTestOwnCell"));
    writeList(items);
    OwnCell::made = 0;
    show();
    const auto* const first = &cell("0");
    peer().scrollRowIntoView(59);
    peer().scrollRowIntoView(0);
    EXPECT_EQ(&cell("0"), first);
    EXPECT_LE(OwnCell::made, 60);
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("0").textLabel()).text(), "own Row 0");
}

TEST_F(PSTableCellTest, AClassThatIsNoCellIsLoggedOnceAndAPlainCellStandsForIt) {
    for (const auto* const name : {"CellTestNowhere", "CellTestNoCell"}) {
        writeList({keptRow("PSSwitchCell", "a", text("cellClass", name))});
        show();
        page_->view().peer().setNeedsLayout();
        screen.layoutIfNeeded();
        EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Row a");
        EXPECT_NE(dynamic_cast<PSControlTableCell*>(&cell("a")), nullptr);
        EXPECT_EQ(log(),
                  (Texts{std::string("Row a: 'cellClass' names ") + name + ", which is no such class."}));
    }
}

TEST_F(PSTableCellTest, APlainCellStandsForOneThatRefuses) {
    writeList({row("PSLinkCell", "a", text("cellClass", "CellTestRefusingCell"))});
    show();
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("a").textLabel()).text(), "Row a");
}

TEST_F(PSTableCellTest, GroupsHaveHeadersAndFooters) {
    writeList({row("PSGroupCell", "g",
                   text("footerText", "Below") + value("footerAlignment", "<integer>1</integer>")),
               row("PSStaticTextCell", "a"), text("cell", "PSGroupCell"), row("PSStaticTextCell", "b")});
    show();
    const auto header = dynamicCast<UILabel>(peer().table().captionView(0, Edge::Header));
    const auto footer = dynamicCast<UILabel>(peer().table().captionView(0, Edge::Footer));
    ASSERT_TRUE(header && footer);
    EXPECT_EQ(peerOf<UILabelPeer>(*header).text(), "ROW G");
    EXPECT_EQ(peerOf<UILabelPeer>(*footer).text(), "Below");
    EXPECT_EQ(peerOf<UILabelPeer>(*footer).textAlignment(), NSTextAlignment::Center);
    EXPECT_FALSE(peer().table().captionView(1, Edge::Header));
    EXPECT_FALSE(peer().table().captionView(1, Edge::Footer));
}

TEST_F(PSTableCellTest, GroupsMayNameTheClassesOfTheirHeadersAndFooters) {
    writeList({text("cell", "PSGroupCell") + text("headerCellClass", "CellTestBanner") +
                   text("title", "Hello") + text("footerCellClass", "CellTestOwnCell") +
                   text("label", "not shown"),
               row("PSStaticTextCell", "a")});
    show();
    const auto banner = dynamicCast<Banner>(peer().table().captionView(0, Edge::Header));
    ASSERT_TRUE(banner);
    EXPECT_EQ(banner->title, PropertyList("Hello"));
    EXPECT_EQ(banner->frame(), CGRectMake(0, 0, 390, 130));
    EXPECT_TRUE(dynamicCast<OwnCell>(peer().table().captionView(0, Edge::Footer)));
    EXPECT_EQ(listRow("a").frame.origin.y, 130);
}

TEST_F(PSTableCellTest, AHeaderOfNoSuchClassIsItsText) {
    writeList(
        {row("PSGroupCell", "g", text("headerCellClass", "CellTestNoCell")), row("PSStaticTextCell", "a")});
    show();
    EXPECT_TRUE(dynamicCast<UILabel>(peer().table().captionView(0, Edge::Header)));
    EXPECT_EQ(log(), (Texts{"Row g: 'headerCellClass' names CellTestNoCell, which is no such class."}));
}

TEST_F(PSTableCellTest, CellsServeOtherRowsOfTheirKind) {
    std::vector<std::string> items(100);
    for (std::size_t number = 0; number < items.size(); ++number)
        items[number] = keptRow(number % 2 == 0 ? "PSTitleValueCell" : "PSSwitchCell", std::to_string(number),
                                text("default", "value " + std::to_string(number)));
    writeList(items);
    show();
    const auto near = peer().table().cells().size();
    EXPECT_LT(near, 30U);
    for (std::size_t number = 0; number < 100; ++number)
        peer().scrollRowIntoView(number);
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("98").detailTextLabel()).text(), "value 98");
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("98").textLabel()).text(), "Row 98");
    EXPECT_EQ(peerOf<UILabelPeer>(cellPeer("99").detailTextLabel()).text(), std::nullopt);
}
