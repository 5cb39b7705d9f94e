#include "CountedView.h"
#include "Framework.h"
#include "FrameworkClass.h"
#include "Journal.h"
#include "Message.h"
#include "ObjectiveC/AttachedValues.h"
#include "ObjectiveC/Class.h"
#include "Preferences/PSSpecifier.h"
#include "UIKit/UILabel.h"

#include <gtest/gtest.h>

namespace {

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

using Lines = std::vector<std::string>;

} // namespace

TEST(InitialisersTest, TheFrameworkMakesAnObjectWithEachOfItsInitialisers) {
    const auto expectOneUntilReleased = [](id object) {
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(CountedView::alive, 1);
        EXPECT_NE(dynamic_cast<CountedView*>(instanceOf(object)), nullptr);
        objc_release(object);
        EXPECT_EQ(CountedView::alive, 0);
    };
    expectOneUntilReleased(newByName("CountedView"));
    expectOneUntilReleased(newWithFrame("CountedView", CGRectMake(1, 2, 3, 4)));
    expectOneUntilReleased(newWithCoder("CountedView"));
    EXPECT_EQ(takeJournal(), (Lines{"-[CountedView initWithFrame:] {{0, 0}, {0, 0}}",
                                    "-[CountedView initWithFrame:] {{1, 2}, {3, 4}}",
                                    "-[CountedView initWithCoder:] NSCoder"}));
}

TEST(InitialisersTest, AnInitialiserOfAnyShapeIsOverridden) {
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

TEST(InitialisersTest, AnInitialiserThatRefusesGivesNothingAndLeavesNothing) {
    EXPECT_EQ(newWithFrame("CountedView", CGRectMake(0, 0, 1, 13)), nullptr);
    EXPECT_EQ(newWithFrame("CountedView", CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(makeWith<CountedView>(&CountedView::initWithFrame, CGRectMake(0, 0, 1, 13)), nullptr);
    EXPECT_EQ(makeWith<CountedView>(&CountedView::initWithFrame, CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(makeWith<UIView>(&UIView::initWithFrame, CGRectMake(0, 0, -1, 0)), nullptr);
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
    EXPECT_EQ(aliveOf("UIView"), 0);
}

TEST(InitialisersTest, AnInitialiserMayAnswerWithAnotherObject) {
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
    EXPECT_EQ(CountedView::alive, 0);
}

TEST(InitialisersTest, TheFrameworkGetsTheObjectThatAnInitialiserAnswersWith) {
    for (const auto maker : {&newByName, +[](const char* name) { return newWithFrame(name, CGRect()); }}) {
        auto* const other = allocatedByName("CountedView");
        answerNextInitialiserWith(other);
        objc_release(other);
        auto* const object = maker("CountedView");
        EXPECT_EQ(object, other);
        EXPECT_EQ(CountedView::alive, 1);
        EXPECT_EQ(aliveOf("CountedView"), 1);
        layOut(object);
        EXPECT_EQ(instanceAs<CountedView>(object)->layouts, 1);
        objc_release(object);
        EXPECT_EQ(CountedView::alive, 0);
        EXPECT_EQ(aliveOf("CountedView"), 0);
    }
}

TEST(InitialisersTest, OwnersAndAttachedValuesGoOverToTheOtherObject) {
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
    EXPECT_EQ(CountedView::alive, 1);
    EXPECT_TRUE(attachedValueOf<Ref<NSObject>>(*kept, "view"));
    kept = nullptr;
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
    EXPECT_EQ(aliveOf("UILabel"), 0);
    EXPECT_EQ(aliveOf("CorvexBox"), boxes);
}

TEST(InitialisersTest, AnOverrideMayRefuseWhatItsBaseHasReadiedAnotherObjectFor) {
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
        EXPECT_EQ(CountedView::alive, 0);
        EXPECT_EQ(aliveOf("CountedView"), 0);
    }
}

TEST(InitialisersTest, AnObjectThatHasItsCppHalfIsNoNewOnes) {
    auto first = make<CountedView>();
    takeJournal();
    answerNextInitialiserWith(objectOf(*first));
    EXPECT_FALSE(make<CountedView>());
    EXPECT_EQ(takeJournal(), (Lines{"-[CountedView initWithFrame:] {{0, 0}, {0, 0}}",
                                    "log: The object that an initialiser of CountedView answers with is "
                                    "another C++ object's."}));
    EXPECT_EQ(CountedView::alive, 1);
    EXPECT_EQ(instanceOf(objectOf(*first)), first.get());
    first = nullptr;
    EXPECT_EQ(CountedView::alive, 0);
    EXPECT_EQ(aliveOf("CountedView"), 0);
}
