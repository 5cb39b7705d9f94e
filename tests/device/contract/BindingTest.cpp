#include "Box.h"
#include "ClassPublisher.h"
#include "CountedView.h"
#include "Framework.h"
#include "Journal.h"
#include "Message.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Method.h"
#include "UIKit/UIControl.h"
#include "UIKit/UILabel.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class CrowdedView final : public UIView {
public:
    void takeFour(double /*one*/, double /*two*/, double /*three*/, double /*four*/) {}

    void takeFive(double /*one*/, double /*two*/, double /*three*/, double /*four*/, double /*five*/) {}
};

} // namespace

TEST(BindingTest, AClassOfTheTableIsPublishedUnderItsNameAndBase) {
    ASSERT_NE(objc_getClass("CountedView"), nullptr);
    EXPECT_STREQ(class_getName(class_getSuperclass(objc_getClass("CountedView"))), "UIView");
    EXPECT_STREQ(class_getName(class_getSuperclass(objc_getClass("DerivedView"))), "CountedView");
}

TEST(BindingTest, AnObjectThatCppMakesIsOfThePublishedClass) {
    const auto view = make<CountedView>();
    EXPECT_STREQ(class_getName(object_getClass(objectOf(*view))), "CountedView");
    EXPECT_EQ(instanceOf(objectOf(*view)), view.get());
}

TEST(BindingTest, BothSidesCountTheSameOwners) {
    auto view = make<CountedView>();
    auto* const object = objc_retain(objectOf(*view));
    view = nullptr;
    EXPECT_EQ(CountedView::alive, 1);
    objc_release(object);
    EXPECT_EQ(CountedView::alive, 0);
}

TEST(BindingTest, AMessageOfTheFrameworkReachesTheOverrideAndItsBaseCallTheFramework) {
    const auto view = make<CountedView>();
    takeJournal();
    layOut(objectOf(*view));
    EXPECT_EQ(view->layouts, 1);
    EXPECT_EQ(takeJournal(), Lines{"-[CountedView layoutSubviews]"});
}

TEST(BindingTest, BaseCallsGoThroughEveryClassOfOursOnce) {
    const auto view = make<DerivedView>();
    takeJournal();
    layOut(objectOf(*view));
    EXPECT_EQ(view->layouts, 11);
    EXPECT_EQ(takeJournal(), Lines{"-[DerivedView layoutSubviews]"});
}

TEST(BindingTest, MethodsOfTheTableAnswerWithEveryKindOfValue) {
    const auto view = make<CountedView>();
    auto* const object = objectOf(*view);
    view->layouts = -7;
    EXPECT_EQ(invokeForInteger(object, "layoutCount", nullptr), -7);
    invokeWithDouble(object, "setScale:", 2.5);
    EXPECT_EQ(view->scale(), 2.5);
    EXPECT_EQ(textOf(perform(object, "echo:", text("grün"))), "grün");
    EXPECT_EQ(perform(object, "echo:", nullptr), nullptr);
    EXPECT_EQ(perform(object, "echo:", number(1)), nullptr);
    EXPECT_EQ(propertyListOf(perform(object, "echoValue:", number(0.5))), PropertyList(0.5));
    auto* const twice = perform(object, "twice:", object);
    ASSERT_EQ(countOf(twice), 2U);
    EXPECT_EQ(objectAt(twice, 1), object);
}

TEST(BindingTest, ArgumentsOfAnyKindsArriveInAnyOrder) {
    const auto view = make<CountedView>();
    const auto take = [&](std::int64_t flag) {
        return performMixed(objectOf(*view), "takeReal:text:flag:real:", 0.5, text("two"), flag, -4);
    };
    EXPECT_EQ(take(1), 1);
    EXPECT_EQ(view->mixed, std::pair(0.5, -4.0));
    EXPECT_EQ(view->mixedText, "two");
    constexpr std::int64_t besideTheBoolean = 0x7F00;
    EXPECT_EQ(take(besideTheBoolean), 0);
    EXPECT_EQ(take(besideTheBoolean + 1), 1);
}

TEST(BindingTest, AMethodOfFiveParametersIsLoggedAndNotPublished) {
    static const Class crowdedClass =
        Class::define<CrowdedView, UIView>("CrowdedView", {method<"a:b:c:d:e:", &CrowdedView::takeFive>(),
                                                           method<"a:b:c:d:", &CrowdedView::takeFour>()});
    takeJournal();
    publishClasses();
    EXPECT_EQ(takeJournal(),
              Lines{"log: -[CrowdedView a:b:c:d:e:] has more parameters than can be published."});
    EXPECT_EQ(typesOf("CrowdedView", "a:b:c:d:e:"), nullptr);
    EXPECT_EQ(std::string(typesOf("CrowdedView", "a:b:c:d:")), "v@:dddd");
}

TEST(BindingTest, AFreshAnswerReachesItsCaller) {
    const auto view = make<CountedView>();
    auto* const cell = newCell("OwnCell", 3, text("row"), emptySpecifier());
    {
        const AutoreleasePool pool;
        auto* const answer = perform(objectOf(*view), "fresh", nullptr);
        EXPECT_EQ(aliveOf("UIView"), 1);
        EXPECT_STREQ(class_getName(object_getClass(answer)), "UIView");
        auto* const accessory = accessoryOf(cell);
        EXPECT_EQ(aliveOf("UILabel"), 1);
        EXPECT_STREQ(class_getName(object_getClass(accessory)), "UILabel");
    }
    EXPECT_EQ(aliveOf("UIView"), 0);
    EXPECT_EQ(aliveOf("UILabel"), 0);
    objc_release(cell);
}

TEST(BindingTest, MethodsArePublishedWithTheirTypes) {
    const std::string boolean(encodingOf<ObjcBool>);
    EXPECT_EQ(std::string(typesOf("CountedView", "layoutCount")), "q@:");
    EXPECT_EQ(std::string(typesOf("CountedView", "setScale:")), "v@:d");
    EXPECT_EQ(std::string(typesOf("CountedView", "scale")), "d@:");
    EXPECT_EQ(std::string(typesOf("CountedView", "setPair:animated:")), "v@:" + boolean + boolean);
    EXPECT_EQ(std::string(typesOf("CountedView", "twice:")), "@@:@");
    EXPECT_EQ(std::string(typesOf("CountedView", "initWithFrame:")), "@@:{CGRect={CGPoint=dd}{CGSize=dd}}");
}

TEST(BindingTest, ASelectorIsPerformedByTheObjectWhoeverDefinesIt) {
    const auto view = make<CountedView>();
    view->layouts = 3;
    EXPECT_EQ(std::get<PropertyList>(view->performSelector("layoutCount")), PropertyList(3));
    view->performSelector("setScale:", {PropertyList(4)});
    EXPECT_EQ(view->scale(), 4);
    view->performSelector("setPair:animated:", {PropertyList(true), PropertyList(false)});
    EXPECT_EQ(view->pair, 1);
    EXPECT_EQ(std::get<PropertyList>(view->performSelector("alpha")), PropertyList(1.0));
    EXPECT_EQ(std::get<Ref<NSObject>>(view->performSelector("layer")).get(), &view->layer());
    EXPECT_EQ(
        std::get<std::vector<Ref<NSObject>>>(view->performSelector("twice:", {Ref<NSObject>(view)})).size(),
        2U);
    EXPECT_TRUE(view->respondsToSelector("setAlpha:"));
    EXPECT_FALSE(view->respondsToSelector("fly"));
}

TEST(BindingTest, ASelectorThatTheObjectLacksIsLoggedAndAnsweredWithNothing) {
    const auto view = make<CountedView>();
    takeJournal();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(view->performSelector("fly")));
    const auto lines = takeJournal();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(
        lines[0].starts_with("log: -[CountedView fly]: unrecognized selector sent to <CountedView: 0x"));
}

TEST(BindingTest, AMessageThatTakesAStructureIsLoggedAndNotSent) {
    const auto view = make<CountedView>();
    takeJournal();
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(view->performSelector("setFrame:", {PropertyList(1)})));
    const auto lines = takeJournal();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].starts_with(
        "log: -[CountedView setFrame:] is not sent by its selector: it takes a {CGRect="));
}

TEST(BindingTest, AnObjectOfTheFrameworksHasOneCppObjectOfTheNearestKnownClass) {
    const auto boxes = aliveOf("CorvexBox");
    auto* const object = newByName("UISwitch");
    auto* const instance = instanceOf(object);
    EXPECT_NE(dynamic_cast<UIControl*>(instance), nullptr);
    EXPECT_EQ(dynamic_cast<UILabel*>(instance), nullptr);
    EXPECT_EQ(instanceOf(object), instance);
    EXPECT_EQ(objectOf(*instance), object);
    EXPECT_EQ(instance->isa().name(), "UISwitch");
    objc_release(object);
    EXPECT_EQ(aliveOf("CorvexBox"), boxes);
}

TEST(BindingTest, WhatIsNoBoxHoldsNothing) {
    const AutoreleasePool pool;
    EXPECT_EQ(boxContent(text("with a pointer where a box has its content")), nullptr);
    EXPECT_EQ(boxContent(nullptr), nullptr);
}

TEST(BindingTest, AnObjectOfAnUnknownClassIsAPlainOne) {
    auto* const object = newByName("NSMutableSet");
    EXPECT_EQ(instanceOf(object)->isa().name(), "NSObject");
    objc_release(object);
    EXPECT_EQ(instanceOf(nullptr), nullptr);
}

TEST(BindingTest, AWeakReferenceIsEmptyInTheObjectsOwnDestructor) {
    auto view = make<CountedView>();
    const Weak<CountedView> weak(view);
    const Weak<CountedView> copy(weak); // NOLINT(performance-unnecessary-copy-initialization): it is meant
    EXPECT_EQ(weak.strong(), view);
    bool wasEmpty = false;
    view->atEnd = [&] { wasEmpty = !weak.strong() && !copy.strong(); };
    view = nullptr;
    EXPECT_TRUE(wasEmpty);
    EXPECT_FALSE(weak.strong());
}

TEST(BindingTest, AWeakReferenceToAnObjectOfTheFrameworksEndsWithIt) {
    auto label = make<UILabel>();
    Weak<UILabel> weak(label);
    const Weak<UILabel> moved(std::move(weak));
    EXPECT_EQ(moved.strong(), label);
    label = nullptr;
    EXPECT_FALSE(moved.strong());
}

TEST(BindingTest, AWeakReferenceToAnObjectOfTheFrameworksWhoseEndGoesOnIsEmpty) {
    const auto view = make<CountedView>();
    auto* const leaving = newByName("LeavingView");
    instanceAs<UIControl>(leaving)->addTarget(*view, "watch:", UIControlEvents::ValueChanged);
    objc_release(leaving);
    EXPECT_FALSE(view->watched.strong());
    EXPECT_EQ(aliveOf("LeavingView"), 0);
}

TEST(BindingTest, MessagesToAnObjectWhoseEndGoesOnReachTheFrameworksAlone) {
    auto view = make<CountedView>();
    auto* const object = objectOf(*view);
    view->atEnd = [&] {
        takeJournal();
        layOut(object);
        invokeForInteger(object, "layoutCount", nullptr);
    };
    view = nullptr;
    EXPECT_EQ(takeJournal(), Lines{"-[CountedView layoutSubviews]"});
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
}
