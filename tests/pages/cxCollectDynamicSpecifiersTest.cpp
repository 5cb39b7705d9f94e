#include "cxCollectDynamicSpecifiers.h"

#include "LoadedBundles.h"
#include "ObjectiveC/Class.h"
#include "PagesFixture.h"
#include "cxBannerController.h"

namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

/// A page of the list "Banner" that notes what it is asked and told.
class NotedPage final : public cxCollectDynamicSpecifiers {
public:
    [[nodiscard]] Specifiers specifiers() override {
        if (cachedSpecifiers().empty()) {
            setCachedSpecifiers(loadSpecifiersFromPlistName("Banner", *this));
            collectDynamicSpecifiersFromArray(cachedSpecifiers());
        }
        return cachedSpecifiers();
    }

    [[nodiscard]] double heightForRowAtIndexPath(UITableView& tableView, NSIndexPath indexPath) override {
        const auto height = cxCollectDynamicSpecifiers::heightForRowAtIndexPath(tableView, indexPath);
        answers.push_back(height);
        return height;
    }

    std::vector<double> answers;
};

const Class notedPageClass = Class::define<NotedPage, cxCollectDynamicSpecifiers>("NotedPage");

class cxCollectDynamicSpecifiersTest : public PagesFixture {
protected:
    void openBanner(const std::vector<std::string>& items) {
        writeList("Banner", items);
        open("cxBannerController");
    }

    [[nodiscard]] cxCollectDynamicSpecifiers& rules() const {
        return dynamic_cast<cxCollectDynamicSpecifiers&>(*page);
    }

    /// The same list shown by a page that notes.
    NotedPage& openNoted(const std::vector<std::string>& items) {
        writeList("Banner", items);
        LoadedBundles::shared().addClass(
            notedPageClass, LoadedBundles::shared().bundleOf(*NSClassFromString("cxBannerController")));
        open("NotedPage");
        auto& noted = dynamic_cast<NotedPage&>(*page);
        noted.answers.clear();
        return noted;
    }

    [[nodiscard]] bool isHidden(const std::string& id) const {
        return rules().shouldHideSpecifier(retain(&specifier(id)));
    }
};

} // namespace

TEST_F(cxCollectDynamicSpecifiersTest, ARowIsGoneWhileItsSwitchReadsFalse) {
    store(false, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, on, show"), ruledRow("last", "")});
    EXPECT_TRUE(rules().hasDynamicSpecifiers());
    EXPECT_EQ(heightOf("master"), 44);
    EXPECT_EQ(heightOf("detail"), 0);
    EXPECT_EQ(heightOf("last"), 44);
    EXPECT_TRUE(isCutOff("detail"));
}

TEST_F(cxCollectDynamicSpecifiersTest, ACellThatIsMadeLaterIsCutOffToo) {
    std::vector<std::string> items;
    items.reserve(62);
    for (auto number = 0; number < 60; ++number)
        items.push_back(row("PSStaticTextCell", std::to_string(number)));
    items.push_back(switchRow("master"));
    items.push_back(ruledRow("detail", "master, on, show"));
    store(false, "master");
    openBanner(items);
    EXPECT_FALSE(listRow("detail").view);
    peer().scrollRowIntoView(60);
    EXPECT_TRUE(isCutOff("detail"));
    EXPECT_FALSE(isCutOff("master"));
}

TEST_F(cxCollectDynamicSpecifiersTest, ARowIsThereWhileItsSwitchReadsTrue) {
    store(true, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, on, show")});
    EXPECT_EQ(heightOf("detail"), 44);
    EXPECT_FALSE(isCutOff("detail"));
}

TEST_F(cxCollectDynamicSpecifiersTest, FlippingTheSwitchStoresItsValueAndSlidesTheRow) {
    store(true, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, on, show"), switchRow("below")});
    const auto before = cell("below").frame().origin.y;
    flip("master");
    EXPECT_EQ(stored("master"), PropertyList(false));
    EXPECT_EQ(cell("below").frame().origin.y, before - 44);
    EXPECT_EQ(shownFrame("below").origin.y, before);
    advance(150ms);
    EXPECT_NEAR(shownFrame("below").origin.y, before - 22, 1);
    advance(151ms);
    EXPECT_EQ(shownFrame("below").origin.y, before - 44);
    EXPECT_TRUE(isCutOff("detail"));
    flip("master");
    EXPECT_FALSE(isCutOff("detail"));
    settle();
    EXPECT_EQ(heightOf("detail"), 44);
}

TEST_F(cxCollectDynamicSpecifiersTest, TheValueIsStoredBeforeHeightsAreAsked) {
    store(true, "master");
    auto& noted = openNoted({switchRow("master"), ruledRow("detail", "master, on, show")});
    flip("master");
    EXPECT_EQ(noted.answers, (std::vector{UITableViewAutomaticDimension, 0.0}));
}

TEST_F(cxCollectDynamicSpecifiersTest, FlippingTheControllingSwitchUpdatesTheTableOnceAndAnyOtherNever) {
    auto& noted = openNoted({switchRow("master"), switchRow("other"), ruledRow("detail", "master, a, b")});
    flip("master");
    EXPECT_EQ(noted.answers.size(), 3U);
    settle();
    noted.answers.clear();
    flip("other");
    settle();
    EXPECT_TRUE(noted.answers.empty());
    EXPECT_EQ(stored("other"), PropertyList(true));
}

TEST_F(cxCollectDynamicSpecifiersTest, AValueThatIsWrittenFromOutsideUpdatesTheTableOnceToo) {
    auto& noted = openNoted({switchRow("master"), ruledRow("detail", "master, a, b")});
    peer().setValue(specifier("master"), true);
    EXPECT_EQ(noted.answers.size(), 2U);
}

TEST_F(cxCollectDynamicSpecifiersTest, ARuleOfTwoOrFourPartsIsIgnored) {
    store(false, "master");
    openBanner(
        {switchRow("master"), ruledRow("two", "master, on"), ruledRow("four", "master, on, show, more")});
    EXPECT_FALSE(rules().hasDynamicSpecifiers());
    EXPECT_EQ(heightOf("two"), 44);
    EXPECT_EQ(heightOf("four"), 44);
    for (const auto* const id : {"two", "four"})
        EXPECT_TRUE(isHidden(id)) << "whoever asks for one row alone has its parts not counted";
}

TEST_F(cxCollectDynamicSpecifiersTest, ARuleWithACommaWithoutASpaceIsIgnored) {
    store(false, "master");
    for (const auto* const rule :
         {"master,on,show", "master, on,show", "master,on, show", "master ,on ,show"}) {
        openBanner({switchRow("master"), ruledRow("tight", rule)});
        EXPECT_FALSE(rules().hasDynamicSpecifiers()) << rule;
        EXPECT_EQ(heightOf("tight"), 44) << rule;
    }
}

TEST_F(cxCollectDynamicSpecifiersTest, TheOtherPartsOfARuleAreNotRead) {
    store(false, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, , ")});
    EXPECT_EQ(heightOf("detail"), 0);
}

TEST_F(cxCollectDynamicSpecifiersTest, AStringHidesNothingEvenOneThatReadsAsZero) {
    for (const auto* const text : {"0", "NO", ""}) {
        store(text, "master");
        openBanner({switchRow("master"), ruledRow("detail", "master, on, show")});
        EXPECT_EQ(heightOf("detail"), 44) << text;
        EXPECT_FALSE(isHidden("detail"));
    }
}

TEST_F(cxCollectDynamicSpecifiersTest, AnyNumberHidesWhenItIsZero) {
    for (const auto& zero : {PropertyList(0), PropertyList(0.0), PropertyList(false)}) {
        store(zero, "master");
        openBanner({switchRow("master"), ruledRow("detail", "master, on, show")});
        EXPECT_TRUE(isHidden("detail"));
    }
    for (const auto& other : {PropertyList(7), PropertyList(-1), PropertyList(0.5)}) {
        store(other, "master");
        openBanner({switchRow("master"), ruledRow("detail", "master, on, show")});
        EXPECT_FALSE(isHidden("detail"));
    }
}

TEST_F(cxCollectDynamicSpecifiersTest, AnAbsentValueHidesNothingAndADefaultCounts) {
    openBanner({switchRow("master"), ruledRow("detail", "master, on, show"),
                switchRow("given", "<key>default</key><false/>"), ruledRow("other", "given, on, show")});
    EXPECT_EQ(heightOf("detail"), 44);
    EXPECT_EQ(heightOf("other"), 0);
}

TEST_F(cxCollectDynamicSpecifiersTest, ARuleThatNamesNoRowHidesNothing) {
    openBanner({switchRow("master"), ruledRow("detail", "nobody, on, show"), row("PSGroupCell", ""),
                ruledRow("nameless", ", on, show")});
    EXPECT_TRUE(rules().hasDynamicSpecifiers());
    EXPECT_EQ(heightOf("detail"), 44);
    EXPECT_EQ(heightOf("nameless"), 44);
}

TEST_F(cxCollectDynamicSpecifiersTest, OfTwoRowsOnOneSwitchOnlyTheLaterIsHidden) {
    store(false, "master");
    openBanner({switchRow("master"), ruledRow("first", "master, a, b"), ruledRow("second", "master, c, d")});
    EXPECT_EQ(heightOf("first"), 44);
    EXPECT_EQ(heightOf("second"), 0);
    EXPECT_TRUE(isHidden("first")); // by its rule, which is not among those that the page keeps
    ASSERT_TRUE(rules().dynamicSpecifiers());
    EXPECT_EQ(rules().dynamicSpecifiers()->objectForKey("master").get(), &specifier("second"));
    EXPECT_EQ(rules().dynamicSpecifiers()->allValues().size(), 1U);
    flip("master");
    settle();
    EXPECT_EQ(heightOf("second"), 44);
}

TEST_F(cxCollectDynamicSpecifiersTest, WithoutASpecifierNothingIsHidden) {
    openBanner({switchRow("master")});
    EXPECT_FALSE(rules().shouldHideSpecifier(nullptr));
    EXPECT_FALSE(isHidden("master"));
}

TEST_F(cxCollectDynamicSpecifiersTest, TheHeightThatAListNamesIsNotHeeded) {
    constexpr auto high = "<key>height</key><integer>90</integer>";
    store(true, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, a, b", high),
                row("PSStaticTextCell", "plain", high)});
    EXPECT_EQ(heightOf("detail"), 44);
    EXPECT_EQ(heightOf("plain"), 44);
}

TEST_F(cxCollectDynamicSpecifiersTest, CollectingAgainForgetsWhatWasCollected) {
    openBanner({switchRow("master"), ruledRow("detail", "master, a, b")});
    const auto kept = rules().dynamicSpecifiers();
    rules().collectDynamicSpecifiersFromArray({retain(&specifier("master"))});
    EXPECT_FALSE(rules().hasDynamicSpecifiers());
    EXPECT_TRUE(kept->allValues().empty());
    EXPECT_EQ(rules().dynamicSpecifiers(), kept);
}

TEST_F(cxCollectDynamicSpecifiersTest, ARuleThatIsNoTextIsNone) {
    openBanner({switchRow("master"), row("PSStaticTextCell", "a",
                                         "<key>dynamicRule</key><array><string>master</string></array>")});
    EXPECT_FALSE(rules().hasDynamicSpecifiers());
}

TEST_F(cxCollectDynamicSpecifiersTest, ARowWithoutAnIdIsNamedByItsKey) {
    writeList("Banner", {"<key>cell</key><string>PSSwitchCell</string><key>key</key><string>master</string>"
                         "<key>defaults</key><string>com.example.test</string>",
                         ruledRow("detail", "master, a, b")});
    store(true, "master");
    open("cxBannerController");
    flip("master");
    settle();
    EXPECT_EQ(heightOf("detail"), 0);
}

TEST_F(cxCollectDynamicSpecifiersTest, ItsMethodsAnswerBySelector) {
    openBanner({switchRow("master"), ruledRow("detail", "master, a, b")});
    EXPECT_EQ(MessageTraits<bool>::unpack(page->performSelector("hasDynamicSpecifiers")), true);
    const auto detail = page->specifierForID("detail");
    store(false, "master");
    EXPECT_EQ(
        MessageTraits<bool>::unpack(page->performSelector("shouldHideSpecifier:", {Ref<NSObject>(detail)})),
        true);
    EXPECT_EQ(MessageTraits<Ref<NSMutableDictionary>>::unpack(page->performSelector("dynamicSpecifiers")),
              rules().dynamicSpecifiers());
    page->performSelector("setDynamicSpecifiers:", {MessageValue()});
    page->performSelector("setHasDynamicSpecifiers:", {PropertyList(false)});
    EXPECT_FALSE(rules().dynamicSpecifiers());
    EXPECT_FALSE(rules().hasDynamicSpecifiers());
}

TEST_F(cxCollectDynamicSpecifiersTest, ToldThatThereAreNoRulesItHeedsNoneThatItKeeps) {
    store(true, "master");
    auto& noted = openNoted({switchRow("master"), ruledRow("detail", "master, a, b")});
    noted.setHasDynamicSpecifiers(false);
    flip("master");
    settle();
    EXPECT_EQ(stored("master"), PropertyList(false));
    EXPECT_TRUE(noted.answers.empty()) << "the heights are not asked anew";
    constexpr NSIndexPath ofDetail{.section = 0, .row = 1};
    ASSERT_EQ(noted.specifierAtIndexPath(ofDetail).get(), &specifier("detail"));
    EXPECT_EQ(noted.heightForRowAtIndexPath(*noted.table(), ofDetail), UITableViewAutomaticDimension);
    noted.setHasDynamicSpecifiers(true);
    EXPECT_EQ(noted.heightForRowAtIndexPath(*noted.table(), ofDetail), 0);
}

TEST_F(cxCollectDynamicSpecifiersTest, RowsWithoutADictionaryAreLeftAlone) {
    store(false, "master");
    openBanner({switchRow("master"), ruledRow("detail", "master, a, b")});
    rules().setDynamicSpecifiers(nullptr);
    flip("master");
    settle();
    EXPECT_EQ(stored("master"), PropertyList(true));
}
