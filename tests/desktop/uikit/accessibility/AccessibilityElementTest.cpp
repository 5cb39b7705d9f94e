#include "accessibility/AccessibilityElement.h"

#include "DesktopImage.h"
#include "UIKit/UIButton.h"
#include "controls/UIControlPeer.h"
#include "controls/UISwitchPeer.h"
#include "navigation/NavigationFixture.h"
#include "tables/UITableViewCellPeer.h"
#include "tables/UITableViewPeer.h"
#include "views/UILabelPeer.h"

namespace {

class AccessibilityElementTest : public NavigationFixture {
protected:
    static UIView& addButton(UIView& parent, const CGRect& frame, const std::string& label) {
        const auto view = makeWith<UIView>(&UIView::initWithFrame, frame);
        parent.addSubview(view);
        view->peer().setAccessibility(
            {.label = label, .value = "", .role = AccessibilityRole::Button, .isElement = true});
        return *view;
    }

    static std::vector<std::string> labels(const std::vector<AccessibilityElement>& elements) {
        std::vector<std::string> found;
        found.reserve(elements.size());
        for (const auto& element : elements)
            found.push_back(element.label);
        return found;
    }

    using Labels = std::vector<std::string>;

    const Ref<LoggedPage> a = page("A");
};

} // namespace

TEST_F(AccessibilityElementTest, elementsAreReadLineByLine) {
    show({a});
    auto& view = a->view();
    addButton(view, {{200, 300}, {50, 44}}, "right");
    addButton(view, {{10, 400}, {50, 44}}, "below");
    addButton(view, {{10, 303}, {50, 40}}, "left");
    EXPECT_EQ(labels(AccessibilityElement::allIn(view)), (Labels{"left", "right", "below"}));
}

TEST_F(AccessibilityElementTest, whatIsNotToBeSeenIsLeftOut) {
    show({a});
    auto& view = a->view();
    addButton(view, {{0, 100}, {50, 44}}, "hidden").peer().setHidden(true);
    addButton(view, {{0, 200}, {50, 44}}, "transparent").setAlpha(0);
    addButton(view, {{0, 300}, {50, 44}}, "shown");
    EXPECT_EQ(labels(AccessibilityElement::allIn(view)), Labels{"shown"});
}

TEST_F(AccessibilityElementTest, whatSomethingElseTellsOfIsLeftOut) {
    show({a});
    auto& outer = addButton(a->view(), {{0, 100}, {100, 44}}, "outer");
    addButton(outer, {{0, 0}, {50, 44}}, "inner");
    outer.peer().setAccessibility({.label = "outer", .value = {}, .isLeftOut = true});
    addButton(a->view(), {{0, 200}, {100, 44}}, "other");
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{"other"});
}

TEST_F(AccessibilityElementTest, anElementIsOneThing) {
    show({a});
    auto& outer = addButton(a->view(), {{0, 100}, {100, 44}}, "outer");
    addButton(outer, {{0, 0}, {50, 44}}, "inner");
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{"outer"});
}

TEST_F(AccessibilityElementTest, aButtonThatShowsNothingIsNone) {
    show({a});
    const auto button = makeWith<UIButton>(&UIButton::initWithFrame, CGRectMake(0, 100, 80, 80));
    a->view().addSubview(button);
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels());
    button->setImage(DesktopImage::symbol("gear", 20), UIControlState::Normal);
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{""});
    button->setImage(nullptr, UIControlState::Normal);
    button->setAccessibilityLabel("Named");
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{"Named"});
}

TEST_F(AccessibilityElementTest, anEmptyLabelIsNone) {
    show({a});
    const auto label = makeWith<UILabel>(&UILabel::initWithFrame, CGRectMake(0, 100, 80, 20));
    a->view().addSubview(label);
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels());
    label->setText("Text");
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{"Text"});
}

TEST_F(AccessibilityElementTest, whatIsOnlyReadIsNoStop) {
    using enum AccessibilityRole;
    AccessibilityElement element;
    for (const auto role : {StaticText, Image, Header}) {
        element.role = role;
        EXPECT_FALSE(element.isStop());
    }
    for (const auto role : {None, Button, Switch, Link, TextField, Slider, Choice}) {
        element.role = role;
        EXPECT_TRUE(element.isStop());
    }
}

TEST_F(AccessibilityElementTest, aSwitchIsOneWhoeverMadeIt) {
    show({a});
    const auto control = make<UISwitch>();
    a->view().addSubview(control);
    peerOf<UISwitchPeer>(*control).setOn(true, false);
    const auto elements = AccessibilityElement::allIn(a->view());
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0].role, AccessibilityRole::Switch);
    EXPECT_EQ(elements[0].value, "1");
    EXPECT_EQ(elements[0].view, control);
}

TEST_F(AccessibilityElementTest, aTitleViewWithoutANameHasThePagesTitle) {
    const auto control = makeWith<UIControl>(&UIControl::initWithFrame, CGRectMake(0, 0, 50, 30));
    a->navigationItem().setTitleView(control);
    show({a});
    const auto elements = AccessibilityElement::allIn(content());
    ASSERT_FALSE(elements.empty());
    EXPECT_EQ(elements.back().view, control);
    EXPECT_EQ(elements.back().label, "A");
}

namespace {

/// One row in a table: a cell that a test fills.
class OneRow final : public TableContent {
public:
    [[nodiscard]] std::size_t sectionCount() const override { return 1; }

    [[nodiscard]] std::size_t rowCount(std::size_t /*section*/) const override { return 1; }

    [[nodiscard]] std::optional<double> rowHeight(IndexPath /*row*/) override { return 44; }

    [[nodiscard]] Ref<UITableViewCell> cellForRow(IndexPath /*row*/) override { return cell; }

    [[nodiscard]] TableCaption header(std::size_t /*section*/) override { return {}; }

    [[nodiscard]] TableCaption footer(std::size_t /*section*/) override { return {}; }

    [[nodiscard]] bool isSelectable(IndexPath /*row*/) override { return selectable; }

    void didSelectRow(IndexPath /*row*/) override {}

    Ref<UITableViewCell> cell = make<UITableViewCell>();
    bool selectable = true;
};

class AccessibilityOfRowsTest : public AccessibilityElementTest {
protected:
    AccessibilityOfRowsTest() {
        static_cast<void>(content_.cell->initWithStyle(UITableViewCellStyle::Value1, {}));
        cell().textLabel().setText("Title");
        show({a});
        table_->setFrame(a->view().bounds());
        a->view().addSubview(table_);
        peerOf<UITableViewPeer>(*table_).setContent(&content_);
    }

    ~AccessibilityOfRowsTest() override { peerOf<UITableViewPeer>(*table_).setContent(nullptr); }

    [[nodiscard]] UITableViewCellPeer& cell() const { return peerOf<UITableViewCellPeer>(*content_.cell); }

    [[nodiscard]] std::vector<AccessibilityElement> elements() {
        screen.layoutIfNeeded();
        return AccessibilityElement::allIn(*table_);
    }

    OneRow content_;
    Ref<UITableView> table_ = make<UITableView>();
};

} // namespace

TEST_F(AccessibilityOfRowsTest, ARowIsOneElementWithItsDetailAsItsValue) {
    cell().detailTextLabel().setText("Detail");
    cell().setAccessoryType(UITableViewCellAccessoryType::DisclosureIndicator);
    ASSERT_EQ(elements().size(), 1U);
    EXPECT_EQ(elements()[0].view, content_.cell);
    EXPECT_EQ(elements()[0].label, "Title");
    EXPECT_EQ(elements()[0].value, "Detail");
    EXPECT_EQ(elements()[0].role, AccessibilityRole::Button);
}

TEST_F(AccessibilityOfRowsTest, ARowThatDoesNothingIsText) {
    content_.selectable = false;
    ASSERT_EQ(elements().size(), 1U);
    EXPECT_EQ(elements()[0].role, AccessibilityRole::StaticText);
}

TEST_F(AccessibilityOfRowsTest, ACheckMarkIsTold) {
    cell().setAccessoryType(UITableViewCellAccessoryType::Checkmark);
    EXPECT_EQ(elements()[0].value, "1");
}

TEST_F(AccessibilityOfRowsTest, TheTextBesideAControlIsItsName) {
    const auto control = make<UISwitch>();
    control->peer().sizeToFit();
    control->peer().setAccessibility({.label = "Title", .value = {}, .isElement = true});
    cell().setAccessoryView(control);
    ASSERT_EQ(elements().size(), 1U);
    EXPECT_EQ(elements()[0].view, control);
    control->peer().setAccessibility({.label = "Another", .value = {}, .isElement = true});
    EXPECT_EQ(labels(elements()), (Labels{"Title", "Another"}));
}

TEST_F(AccessibilityOfRowsTest, AnEmptyRowIsNone) {
    cell().textLabel().setText({});
    EXPECT_TRUE(elements().empty());
}
