// How classes of the class table become classes of the runtime, where other code has classes too.

#include "ClassPublisher.h"
#include "Framework.h"
#include "FrameworkClass.h"
#include "GlintImageSwitch.h"
#include "Instances.h"
#include "Journal.h"
#include "PublishedClasses.h"
#include "UIKit/UILabel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class LateView final : public UIView {};

/// Stands for what other code states, and has taken away with it.
class Unloaded : public UIView {};

class Orphan final : public Unloaded {};

/// Stands for a class of the framework that readies itself.
class Readied : public UIView {};

/// The class that the program's records state.
class RecordedView final : public Readied {
public:
    [[nodiscard]] bool isRecorded() const { return isa().name() == "RecordedView"; }
};

const FrameworkClassOf<Readied, UIView> readiedClass("ReadiedView");

/// A class of the runtime as a record makes it: without methods.
objc_class* recordedClass() {
    auto* const made = objc_allocateClassPair(objc_getClass("ReadiedView"), "RecordedView", 0);
    class_addIvar(made, instanceVariableName, sizeof(void*), 3, "^v");
    objc_registerClassPair(made);
    return made;
}

} // namespace

TEST(PublishingTest, AClassOfOtherCodeIsLeftAsItIs) {
    EXPECT_EQ(typesOf("GlintImageSwitch", "isOn"), nullptr);
    auto* const theirs = newByName("GlintImageSwitch");
    EXPECT_EQ(dynamic_cast<GlintImageSwitch*>(instanceOf(theirs)), nullptr);
    objc_release(theirs);
}

TEST(PublishingTest, AClassWhoseNameIsTakenIsPublishedUnderAnother) {
    const auto control = makeWith<GlintImageSwitch>(&GlintImageSwitch::initWithFrame, CGRect());
    auto* const object = objectOf(*control);
    EXPECT_STREQ(class_getName(object_getClass(object)), "GlintImageSwitch2");
    EXPECT_EQ(object_getClass(object), runtimeClass(*NSClassFromString("GlintImageSwitch")));
    invokeWithBooleans(object, "setOn:", true, false);
    EXPECT_TRUE(control->isOn());
    auto* const another = newByName("GlintImageSwitch2");
    EXPECT_NE(dynamic_cast<GlintImageSwitch*>(instanceOf(another)), nullptr);
    objc_release(another);
}

TEST(PublishingTest, ThePageHasItsSwitchAllTheSame) {
    auto* const page = newByName("cxRootListController");
    perform(page, "setupNavigationSwitch", nullptr);
    auto* const shown = titleViewOf(page);
    EXPECT_STREQ(class_getName(object_getClass(shown)), "GlintImageSwitch2");
    EXPECT_TRUE(instanceAs<GlintImageSwitch>(shown));
    objc_release(page);
    forgetSuites();
}

TEST(PublishingTest, ATakenNameIsLoggedOnce) {
    static const Class lateClass = Class::define<LateView, UIView>("LateView");
    publishClasses();
    EXPECT_EQ(takeJournal(),
              Lines{"log: The class name LateView is taken by other code: it is LateView3 here."});
    publishClasses();
    EXPECT_EQ(takeJournal(), Lines());
    EXPECT_STREQ(class_getName(object_getClass(objectOf(*make<LateView>()))), "LateView3");
}

TEST(PublishingTest, AClassWhoseBaseIsMissingIsLogged) {
    const Class orphan = Class::define<Orphan, Unloaded>("Orphan");
    takeJournal();
    publishClasses();
    EXPECT_EQ(takeJournal(),
              Lines{"log: Class Orphan cannot be published: it, or one that it derives from, is "
                    "missing."});
    EXPECT_EQ(runtimeClass(orphan), nullptr);
}

TEST(PublishingTest, WhatKeepsTheCppHalvesTakesAnotherNameToo) {
    const auto before = aliveOf("CorvexBox2");
    const auto label = make<UILabel>();
    EXPECT_EQ(aliveOf("CorvexBox"), 0);
    EXPECT_EQ(aliveOf("CorvexBox2"), before + 1);
}

TEST(PublishingTest, TheClassOfARecordIsPublishedWithItsFirstMessageWhichItsBaseGetsToo) {
    static const Class statedAsRecorded = Class::define<RecordedView, Readied>(
        "RecordedView", {method<"isRecorded", &RecordedView::isRecorded>()});
    auto* const recorded = recordedClass();
    publishWithFirstMessageTo(recorded);
    EXPECT_EQ(runtimeClass(statedAsRecorded), nullptr);
    takeJournal();
    auto* const view = newByName("RecordedView");
    EXPECT_EQ(takeJournal(), (Lines{"+[ReadiedView initialize]", "+[RecordedView initialize]",
                                    "-[RecordedView initWithFrame:] {{0, 0}, {0, 0}}"}));
    EXPECT_EQ(runtimeClass(statedAsRecorded), recorded);
    EXPECT_TRUE(invokeForBoolean(view, "isRecorded"));
    objc_release(view);
    EXPECT_EQ(aliveOf("RecordedView"), 0);
}
