#include "ObjectiveC/Class.h"
#include "PagesFixture.h"
#include "cxCollectDynamicSpecifiers.h"

namespace {

struct SubPage {
    const char* className;
    const char* list;
    bool hidesRows;
};

void PrintTo(const SubPage& page, std::ostream* out) {
    *out << page.className;
}

class SubPagesTest : public PagesFixture, public testing::WithParamInterface<SubPage> {
protected:
    [[nodiscard]] const cxCollectDynamicSpecifiers* rules() const {
        return dynamic_cast<const cxCollectDynamicSpecifiers*>(page.get());
    }
};

} // namespace

TEST_P(SubPagesTest, IsMadeByItsNameAndShowsItsList) {
    writeList(GetParam().list, {switchRow("a"), switchRow("b")});
    open(GetParam().className);
    ASSERT_EQ(page->specifiers().size(), 2U);
    EXPECT_EQ(page->isa().name(), GetParam().className);
    EXPECT_EQ(specifier("b").target(), Ref<NSObject>(page));
    EXPECT_TRUE(device.log().take().empty());
}

TEST_P(SubPagesTest, LoadsItsListOnce) {
    writeList(GetParam().list, {switchRow("a"), ruledRow("b", "a, on, show")});
    open(GetParam().className);
    const auto first = page->specifiers();
    writeList(GetParam().list, {switchRow("other")});
    if (rules() != nullptr)
        rules()->dynamicSpecifiers()->removeAllObjects();
    EXPECT_EQ(page->specifiers(), first);
    const auto* const collected = rules();
    EXPECT_TRUE(collected == nullptr || collected->dynamicSpecifiers()->allValues().empty());
}

TEST_P(SubPagesTest, HidesRowsByRuleOrDoesNot) {
    store(false, "a");
    writeList(GetParam().list, {switchRow("a"), ruledRow("b", "a, on, show")});
    open(GetParam().className);
    EXPECT_EQ(rules() != nullptr, GetParam().hidesRows);
    EXPECT_EQ(heightOf("b"), GetParam().hidesRows ? 0 : 44);
}

TEST_P(SubPagesTest, WithoutRulesIsAPlainPage) {
    writeList(GetParam().list, {switchRow("a"), ruledRow("b", "a")});
    open(GetParam().className);
    EXPECT_TRUE(rules() == nullptr || !rules()->hasDynamicSpecifiers());
    EXPECT_EQ(heightOf("a"), 44);
    EXPECT_EQ(heightOf("b"), 44);
    flip("a");
    EXPECT_EQ(stored("a"), PropertyList(true));
}

TEST_P(SubPagesTest, WithoutAListIsEmpty) {
    open(GetParam().className);
    EXPECT_TRUE(page->specifiers().empty());
}

INSTANTIATE_TEST_SUITE_P(All, SubPagesTest,
                         testing::Values(SubPage{"cxBannerController", "Banner", true},
                                         SubPage{"cxOrganizeController", "Organize", true},
                                         SubPage{"cxLabelController", "Label", false},
                                         SubPage{"cxGeneralController", "General", false},
                                         SubPage{"cxExtraController", "Extra", false},
                                         SubPage{"cxColorController", "Color", false},
                                         SubPage{"cxBackgroundController", "Background", true}),
                         [](const auto& parameter) { return std::string(parameter.param.className); });
