#include "Framework.h"
#include "FrameworkClass.h"
#include "Journal.h"
#include "Message.h"
#include "ObjectiveC/AttachedValues.h"
#include "ObjectiveC/Class.h"
#include "ObjectiveC/Weak.h"
#include "Preferences/PSSpecifier.h"
#include "UIKit/UIControl.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIViewController.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace {

int objectsAlive = 0;

/// A view that is known to the class table, and counts itself.
class CountedView : public UIView {
public:
    CountedView() { ++objectsAlive; }

    ~CountedView() override {
        --objectsAlive;
        if (atEnd)
            atEnd();
    }

    void layoutSubviews() override {
        UIView::layoutSubviews();
        ++layouts;
        if (atLayout)
            atLayout();
    }

    [[nodiscard]] bool initWithFrame(const CGRect& frame) override {
        if (atInit)
            atInit(*this);
        return frame.size.height != 13 && UIView::initWithFrame(frame) && frame.size.width != 13;
    }

    [[nodiscard]] std::int64_t layoutCount() const { return layouts; }

    void setScale(double scale) {
        scale_ = scale;
        if (atLayout)
            atLayout();
    }

    [[nodiscard]] double scale() const { return scale_; }

    void setPair(bool on, bool animated) { pair = (on ? 1 : 0) + (animated ? 2 : 0); }

    [[nodiscard]] std::optional<std::string> echo(const std::optional<std::string>& text) const {
        return text;
    }

    [[nodiscard]] std::optional<PropertyList> echoValue(const std::optional<PropertyList>& value) const {
        return value;
    }

    [[nodiscard]] Ref<UIView> fresh() const { return make<UIView>(); }

    void watch(const Ref<UIView>& view) { watched = Weak<UIView>(view); }

    [[nodiscard]] std::vector<Ref<UIView>> twice(const Ref<UIView>& view) const { return {view, view}; }

    std::int64_t layouts = 0;
    int pair = 0;
    std::function<void()> atEnd;
    std::function<void()> atLayout;
    Weak<UIView> watched;

    static inline std::function<void(CountedView&)> atInit;

private:
    double scale_ = 1;
};

/// Derived from a class that is published too.
class DerivedView final : public CountedView {
public:
    void layoutSubviews() override {
        CountedView::layoutSubviews();
        layouts += 10;
    }
};

/// Stands for a class of the framework that has an initialiser of its own.
class Cell : public UIView {
public:
    [[nodiscard]] virtual bool initWithStyle(std::int64_t style,
                                             const std::optional<std::string>& reuseIdentifier,
                                             const Ref<PSSpecifier>& specifier) {
        return initialise<"-[StandInCell initWithStyle:reuseIdentifier:specifier:]">(
            *this, style, reuseIdentifier, specifier);
    }

    [[nodiscard]] virtual Ref<UIView> accessory() {
        return sendToBase<"-[StandInCell accessory]", Ref<UIView>>(*this);
    }
};

/// Takes cells of one style alone.
class OwnCell final : public Cell {
public:
    [[nodiscard]] bool initWithStyle(std::int64_t style, const std::optional<std::string>& reuseIdentifier,
                                     const Ref<PSSpecifier>& specifier) override {
        return style == 3 && specifier && Cell::initWithStyle(style, reuseIdentifier, specifier);
    }

    [[nodiscard]] Ref<UIView> accessory() override { return make<UILabel>(); }
};

const FrameworkClassOf<Cell, UIView>
    cellClass("StandInCell",
              {initialiser<"-[StandInCell initWithStyle:reuseIdentifier:specifier:]", &Cell::initWithStyle>(),
               overridable<"-[StandInCell accessory]", &Cell::accessory>()});
const Class ownCellClass = Class::define<OwnCell, Cell>("OwnCell");
const Class countedClass = Class::define<CountedView, UIView>(
    "CountedView",
    {method<"layoutCount", &CountedView::layoutCount>(), method<"setScale:", &CountedView::setScale>(),
     method<"scale", &CountedView::scale>(), method<"setPair:animated:", &CountedView::setPair>(),
     method<"echo:", &CountedView::echo>(), method<"echoValue:", &CountedView::echoValue>(),
     method<"twice:", &CountedView::twice>(), method<"fresh", &CountedView::fresh>(),
     method<"watch:", &CountedView::watch>()});
const Class derivedClass = Class::define<DerivedView, CountedView>("DerivedView");

using Lines = std::vector<std::string>;

} // namespace

TEST(BindingTest, AClassOfTheTableIsPublishedUnderItsNameAndBase) {
    ASSERT_NE(objc_getClass("CountedView"), nullptr);
    EXPECT_STREQ(class_getName(class_getSuperclass(objc_getClass("CountedView"))), "UIView");
    EXPECT_STREQ(class_getName(class_getSuperclass(objc_getClass("DerivedView"))), "CountedView");
}

TEST(BindingTest, TheFrameworkMakesAnObjectWithEachOfItsInitialisers) {
    const auto expectOneUntilReleased = [](id object) {
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(objectsAlive, 1);
        EXPECT_NE(dynamic_cast<CountedView*>(instanceOf(object)), nullptr);
        objc_release(object);
        EXPECT_EQ(objectsAlive, 0);
    };
    expectOneUntilReleased(newByName("CountedView"));
    expectOneUntilReleased(newWithFrame("CountedView", CGRectMake(1, 2, 3, 4)));
    expectOneUntilReleased(newWithCoder("CountedView"));
    EXPECT_EQ(takeJournal(), (Lines{"-[CountedView initWithFrame:] {{0, 0}, {0, 0}}",
                                    "-[CountedView initWithFrame:] {{1, 2}, {3, 4}}",
                                    "-[CountedView initWithCoder:] NSCoder"}));
}

TEST(BindingTest, AnInitialiserOfAnyShapeIsOverridden) {
    auto* const cell = newCell("OwnCell", 3, text("row"), emptySpecifier());
    ASSERT_NE(cell, nullptr);
    EXPECT_TRUE(instanceAs<OwnCell>(cell));
    objc_release(cell);
    EXPECT_EQ(newCell("OwnCell", 4, text("row"), emptySpecifier()), nullptr);
    EXPECT_EQ(newCell("OwnCell", 3, text("row"), nullptr), nullptr);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[OwnCell initWithStyle:reuseIdentifier:specifier:] 3 \"row\" PSSpecifier",
                     "-[OwnCell initWithFrame:] {{0, 0}, {0, 0}}"}));
    EXPECT_EQ(aliveOf("OwnCell"), 0);
}

TEST(BindingTest, AnInitialiserThatRefusesGivesNothingAndLeavesNothing) {
    EXPECT_EQ(newWithFrame("CountedView", CGRectMake(0, 0, 1, 13)), nullptr);
    EXPECT_EQ(newWithFrame("CountedView", CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(makeWith<CountedView>(&CountedView::initWithFrame, CGRectMake(0, 0, 1, 13)), nullptr);
    EXPECT_EQ(makeWith<CountedView>(&CountedView::initWithFrame, CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(makeWith<UIView>(&UIView::initWithFrame, CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
    EXPECT_EQ(aliveOf("UIView"), 0);
}

TEST(BindingTest, AnInitialiserMayAnswerWithAnotherObject) {
    const std::vector<std::function<Ref<UIView>()>> makers{[] { return make<UIView>(); },
                                                           [] { return make<CountedView>(); },
                                                           [] { return make<DerivedView>(); }};
    for (const auto& maker : makers) {
        const auto* const name = class_getName(object_getClass(objectOf(*maker())));
        auto* const other = allocatedByName(name);
        answerNextInitialiserWith(other);
        objc_release(other);
        auto view = maker();
        ASSERT_TRUE(view);
        EXPECT_EQ(objectOf(*view), other);
        EXPECT_EQ(instanceOf(other), view.get());
        EXPECT_EQ(aliveOf(name), 1);
        view->setAlpha(0.5);
        EXPECT_EQ(std::get<PropertyList>(view->performSelector("alpha")), PropertyList(0.5));
        view = nullptr;
        EXPECT_EQ(aliveOf(name), 0) << name;
    }
    EXPECT_EQ(objectsAlive, 0);
}

TEST(BindingTest, TheFrameworkGetsTheObjectThatAnInitialiserAnswersWith) {
    for (const auto maker : {&newByName, +[](const char* name) { return newWithFrame(name, CGRect()); }}) {
        auto* const other = allocatedByName("CountedView");
        answerNextInitialiserWith(other);
        objc_release(other);
        auto* const object = maker("CountedView");
        EXPECT_EQ(object, other);
        EXPECT_EQ(objectsAlive, 1);
        EXPECT_EQ(aliveOf("CountedView"), 1);
        layOut(object);
        EXPECT_EQ(instanceAs<CountedView>(object)->layouts, 1);
        objc_release(object);
        EXPECT_EQ(objectsAlive, 0);
        EXPECT_EQ(aliveOf("CountedView"), 0);
    }
}

TEST(BindingTest, OwnersAndAttachedValuesGoOverToTheOtherObject) {
    const auto boxes = aliveOf("CorvexBox");
    Ref<CountedView> kept;
    CountedView::atInit = [&kept, label = make<UILabel>()](CountedView& view) {
        kept = retain(&view);
        setAttachedValue(view, "view", Ref<NSObject>(label), Retention::Retain);
    };
    auto* const other = allocatedByName("CountedView");
    answerNextInitialiserWith(other);
    objc_release(other);
    auto view = make<CountedView>();
    CountedView::atInit = {};
    EXPECT_EQ(view, kept);
    EXPECT_EQ(objectOf(*view), other);
    view = nullptr;
    EXPECT_EQ(objectsAlive, 1);
    EXPECT_TRUE(attachedValueOf<Ref<NSObject>>(*kept, "view"));
    kept = nullptr;
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
    EXPECT_EQ(aliveOf("UILabel"), 0);
    EXPECT_EQ(aliveOf("CorvexBox"), boxes);
}

TEST(BindingTest, AnOverrideMayRefuseWhatItsBaseHasReadiedAnotherObjectFor) {
    for (const auto maker :
         {+[] { return newWithFrame("CountedView", CGRectMake(0, 0, 13, 0)); },
          +[] {
              return objectOf(
                  makeWith<CountedView>(&CountedView::initWithFrame, CGRectMake(0, 0, 13, 0)).get());
          }}) {
        auto* const other = allocatedByName("CountedView");
        answerNextInitialiserWith(other);
        objc_release(other);
        EXPECT_EQ(maker(), nullptr);
        EXPECT_EQ(objectsAlive, 0);
        EXPECT_EQ(aliveOf("CountedView"), 0);
    }
}

TEST(BindingTest, AnObjectThatHasItsCppHalfIsNoNewOnes) {
    auto first = make<CountedView>();
    takeJournal();
    answerNextInitialiserWith(objectOf(*first));
    EXPECT_FALSE(make<CountedView>());
    EXPECT_EQ(takeJournal(), (Lines{"-[CountedView initWithFrame:] {{0, 0}, {0, 0}}",
                                    "log: The object that an initialiser of CountedView answers with is "
                                    "another C++ object's."}));
    EXPECT_EQ(objectsAlive, 1);
    EXPECT_EQ(instanceOf(objectOf(*first)), first.get());
    first = nullptr;
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
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
    EXPECT_EQ(objectsAlive, 1);
    objc_release(object);
    EXPECT_EQ(objectsAlive, 0);
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

TEST(BindingTest, ANumberIsNoPointer) {
    const auto view = make<CountedView>();
    EXPECT_EQ(std::get<PropertyList>(view->performSelector("respondsToSelector:", {PropertyList(5)})),
              PropertyList(false));
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
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
}

TEST(BindingTest, TextsKeepEveryCharacter) {
    using namespace std::string_view_literals;
    for (const auto sample : {""sv, "Größe"sv, "日本語 🏳️‍🌈"sv, "a\0b"sv, "\U0010FFFF"sv})
        EXPECT_EQ(textOf(textObject(sample)), sample);
    EXPECT_EQ(textOf(textObject("a\xFFz")), "aÿz");
    EXPECT_EQ(textOf(nullptr), "");
    EXPECT_EQ(textIfAny(number(1)), std::nullopt);
}

TEST(BindingTest, PropertyListValuesKeepTheirKindsBothWays) {
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

TEST(BindingTest, OfACollectionWhatNoPropertyListHoldsIsLeftOut) {
    auto* const array = emptyArray();
    addTo(array, number(1));
    addTo(array, objectOf(*make<UIView>()));
    EXPECT_EQ(propertyListOf(array), PropertyList(PropertyList::Array{1.0}));
}

TEST(BindingTest, AttachedValuesAreKeptByKeyAndReleasedWithTheirOwner) {
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
    EXPECT_EQ(objectsAlive, 2);
    setAttachedValue(*owner, "view", std::monostate(), Retention::Retain);
    EXPECT_EQ(objectsAlive, 1);
    setAttachedValue(*owner, "view", Ref<NSObject>(make<CountedView>()), Retention::Retain);
    owner = nullptr;
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(aliveOf("CorvexBox"), boxes);
}

TEST(BindingTest, ABlockOutlivesTheCallAndKeepsWhatItsFunctionHolds) {
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
    EXPECT_EQ(objectsAlive, 1);
    finishAnimations();
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(answer);
    EXPECT_EQ(objectsAlive, 0);
    EXPECT_EQ(takeJournal().back(),
              "+[UIView animateWithDuration:delay:options:animations:completion:] 0.3 0.1 4 completion");
}

TEST(BindingTest, AnEmptyFunctionIsNoBlock) {
    make<UIViewController>()->dismissViewControllerAnimated(false, {});
    EXPECT_EQ(takeJournal(), Lines{"-[UIViewController dismissViewControllerAnimated:completion:] 0"});
}

TEST(BindingTest, StructuresOfNumbersCrossBothWays) {
    const auto view = makeWith<UIView>(&UIView::initWithFrame, CGRectMake(1, 2, 30, 40));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 30, 40));
    view->setCenter({100, 200});
    EXPECT_EQ(view->frame(), CGRectMake(85, 180, 30, 40));
}

TEST(BindingDeathTest, AnExceptionEndsTheProgramBeforeItReachesObjectiveC) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto view = make<CountedView>();
    auto* const object = objectOf(*view);
    view->atLayout = [] { throw std::runtime_error("thrown"); };
    const auto swallow = [](auto call) {
        try {
            call();
        } catch (...) {
            std::exit(0);
        }
    };
    EXPECT_DEATH(swallow([object] { layOut(object); }), "thrown");
    EXPECT_DEATH(swallow([object] { invokeWithDouble(object, "setScale:", 2); }), "thrown");
}

TEST(BindingTest, NothingAnswersWithNothing) {
    EXPECT_EQ((send<"-[UIView frame]", CGRect>(id(nullptr))), CGRect());
    EXPECT_EQ((send<"-[CALayer cornerRadius]", double>(id(nullptr))), 0.0);
}
