#include "CountedView.h"
#include "Framework.h"
#include "Journal.h"
#include "Message.h"
#include "ObjectiveC/AttachedValues.h"
#include "UIKit/UIViewController.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

} // namespace

TEST(BridgeTest, ANumberIsNoPointer) {
    const auto view = make<CountedView>();
    EXPECT_EQ(std::get<PropertyList>(view->performSelector("respondsToSelector:", {PropertyList(5)})),
              PropertyList(false));
}

TEST(BridgeTest, TextsKeepEveryCharacter) {
    using namespace std::string_view_literals;
    for (const auto sample : {""sv, "Größe"sv, "日本語 🏳️‍🌈"sv, "a\0b"sv, "\U0010FFFF"sv})
        EXPECT_EQ(textOf(textObject(sample)), sample);
    EXPECT_EQ(textOf(textObject("a\xFFz")), "aÿz");
    EXPECT_EQ(textOf(nullptr), "");
    EXPECT_EQ(textIfAny(number(1)), std::nullopt);
}

TEST(BridgeTest, PropertyListValuesKeepTheirKindsBothWays) {
    const PropertyList::Dictionary all{
        {"true", true},
        {"false", false},
        {"zero", 0},
        {"one", 1},
        {"real", 1.0},
        {"small", -9223372036854775807LL - 1},
        {"large", 18446744073709551615ULL},
        {"text", "ü"},
        {"empty", ""},
        {"data", NSData::dataWithBytes("\x01\x02")},
        {"no data", NSData()},
        {"date", NSDate{1234.5}},
        {"list", PropertyList::Array{1, true, PropertyList::Dictionary{{"a", 0.5}}}}};
    EXPECT_EQ(propertyListOf(propertyListObject(all)), PropertyList(all));
    EXPECT_EQ(propertyListOf(nullptr), std::nullopt);
    EXPECT_EQ(propertyListOf(objectOf(*make<UIView>())), std::nullopt);
}

TEST(BridgeTest, OfACollectionWhatNoPropertyListHoldsIsLeftOut) {
    auto* const array = emptyArray();
    addTo(array, number(1));
    addTo(array, objectOf(*make<UIView>()));
    EXPECT_EQ(propertyListOf(array), PropertyList(PropertyList::Array{1.0}));
}

TEST(BridgeTest, AttachedValuesAreKeptByKeyAndReleasedWithTheirOwner) {
    const auto boxes = aliveOf("CorvexBox");
    auto owner = make<CountedView>();
    setAttachedValue(*owner, "view", Ref<NSObject>(make<CountedView>()), Retention::RetainNonatomic);
    setAttachedValue(*owner, "name", std::string("My Settings"), Retention::CopyNonatomic);
    int runs = 0;
    setAttachedValue(*owner, "block", std::function<void()>([&runs] { ++runs; }), Retention::CopyNonatomic);
    EXPECT_TRUE(attachedValueOf<Ref<NSObject>>(*owner, "view"));
    EXPECT_EQ(attachedValueOf<std::string>(*owner, "name"), "My Settings");
    (*attachedValueOf<std::function<void()>>(*owner, "block"))();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(CountedView::alive, 2);
    setAttachedValue(*owner, "view", std::monostate(), Retention::Retain);
    EXPECT_EQ(CountedView::alive, 1);
    setAttachedValue(*owner, "view", Ref<NSObject>(make<CountedView>()), Retention::Retain);
    owner = nullptr;
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(aliveOf("CorvexBox"), boxes);
}

TEST(BridgeTest, ABlockOutlivesTheCallAndKeepsWhatItsFunctionHolds) {
    auto kept = make<CountedView>();
    int calls = 0;
    bool answer = false;
    UIView::animateWithDuration(
        0.3, 0.1, UIViewAnimationOptions::BeginFromCurrentState, [&calls] { ++calls; },
        [kept, &calls, &answer, own = 0](bool finished) mutable {
            calls += ++own;
            answer = finished;
        });
    kept = nullptr;
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(CountedView::alive, 1);
    finishAnimations();
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(answer);
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(takeJournal().back(),
              "+[UIView animateWithDuration:delay:options:animations:completion:] 0.3 0.1 4 completion");
}

TEST(BridgeTest, AnEmptyFunctionIsNoBlock) {
    make<UIViewController>()->dismissViewControllerAnimated(false, {});
    EXPECT_EQ(takeJournal(), Lines{"-[UIViewController dismissViewControllerAnimated:completion:] 0"});
}

TEST(BridgeTest, StructuresOfNumbersCrossBothWays) {
    const auto view = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(1, 2, 30, 40));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 30, 40));
    view->setCenter({100, 200});
    EXPECT_EQ(view->frame(), CGRectMake(85, 180, 30, 40));
}

TEST(BridgeTest, NothingAnswersWithNothing) {
    EXPECT_EQ((send<"-[UIView frame]", CGRect>(id(nullptr))), CGRect());
    EXPECT_EQ((send<"-[CALayer cornerRadius]", double>(id(nullptr))), 0.0);
}
