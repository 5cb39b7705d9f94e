#include "ToldElements.h"

#include "Phone.h"

namespace {

using enum ToldElements::Change;
using News = std::vector<ToldElements::News>;

AccessibilityElement element(const Ref<UIView>& view, const std::string& label, const std::string& value) {
    AccessibilityElement element;
    element.view = view;
    element.label = label;
    element.value = value;
    return element;
}

class ToldElementsTest : public Phone {
protected:
    ToldElementsTest() { static_cast<void>(told.update(elements)); }

    [[nodiscard]] News update() { return told.update(elements); }

    const Ref<UIView> first = make<UIView>();
    const Ref<UIView> second = make<UIView>();
    std::vector<AccessibilityElement> elements{element(first, "First", "1"), element(second, "Second", "")};
    ToldElements told;
};

} // namespace

TEST_F(ToldElementsTest, WhatIsAsBeforeIsNoNews) {
    elements[0].frame = CGRectMake(1, 2, 3, 4);
    EXPECT_EQ(update(), News());
}

TEST_F(ToldElementsTest, AValueIsNewsOnce) {
    elements[0].value = "0";
    EXPECT_EQ(update(), (News{{Value, first}}));
    EXPECT_EQ(update(), News());
}

TEST_F(ToldElementsTest, ANameIsNews) {
    elements[1].label = "Other";
    EXPECT_EQ(update(), (News{{Name, second}}));
}

TEST_F(ToldElementsTest, WhatGoesComesOrChangesPlacesIsNews) {
    std::swap(elements[0], elements[1]);
    EXPECT_EQ(update(), (News{{Elements, nullptr}}));
    elements.pop_back();
    EXPECT_EQ(update(), (News{{Elements, nullptr}}));
    elements.push_back(element(first, "First again", ""));
    EXPECT_EQ(update(), (News{{Elements, nullptr}})) << "one that comes has no other name than before";
}

TEST_F(ToldElementsTest, AnElementWhoseViewIsGoneIsNewsWhenAnotherIsInItsPlace) {
    elements[1].view = make<UIView>();
    EXPECT_EQ(update(), (News{{Elements, nullptr}}));
}
