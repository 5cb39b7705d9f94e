#include "accessibility/AccessibilityElement.h"

#include "controls/UIControlPeer.h"
#include "controls/UISwitchPeer.h"
#include "navigation/NavigationFixture.h"
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

TEST_F(AccessibilityElementTest, anElementIsOneThing) {
    show({a});
    auto& outer = addButton(a->view(), {{0, 100}, {100, 44}}, "outer");
    addButton(outer, {{0, 0}, {50, 44}}, "inner");
    EXPECT_EQ(labels(AccessibilityElement::allIn(a->view())), Labels{"outer"});
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
