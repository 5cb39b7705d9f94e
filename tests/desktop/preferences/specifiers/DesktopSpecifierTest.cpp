#include "specifiers/DesktopSpecifier.h"

#include "ObjectiveC/Class.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

class Target : public NSObject {
public:
    std::optional<PropertyList> readPreferenceValue(const Ref<PSSpecifier>& /*specifier*/) { return 5; }

    void setPreferenceValue(const std::optional<PropertyList>& value, const Ref<PSSpecifier>& specifier) {
        events.push_back("set " + (value ? value->description() : "nothing") +
                         (specifier ? " with its row" : ""));
    }

    std::optional<PropertyList> own(const Ref<PSSpecifier>& specifier) {
        return specifier->propertyForKey("own");
    }

    void act() { events.emplace_back("acted"); }

    std::vector<std::string> events;
};

const Class targetClass = Class::define<Target>(
    "DesktopSpecifierTestTarget", {method<"readPreferenceValue:", &Target::readPreferenceValue>(),
                                   method<"setPreferenceValue:specifier:", &Target::setPreferenceValue>(),
                                   method<"own:", &Target::own>(), method<"act", &Target::act>()});

class DesktopSpecifierTest : public testing::Test {
protected:
    static Ref<DesktopSpecifier> with(PropertyList::Dictionary properties) {
        return make<DesktopSpecifier>(std::move(properties));
    }

    Ref<DesktopSpecifier> targeted(PropertyList::Dictionary properties) {
        return make<DesktopSpecifier>(std::move(properties), *target_);
    }

    TestDevice device_;
    Ref<Target> target_ = make<Target>();
};

} // namespace

TEST_F(DesktopSpecifierTest, KnowsTheKindsByNameAndNumber) {
    EXPECT_EQ(with({{"cell", "PSGroupCell"}})->kind(), SpecifierKind::Group);
    EXPECT_EQ(with({{"cell", "PSSwitchCell"}})->kind(), SpecifierKind::Switch);
    EXPECT_EQ(with({{"cell", "PSSpinnerCell"}})->kind(), SpecifierKind::Spinner);
    EXPECT_EQ(with({{"cell", "psswitchcell"}})->kind(), SpecifierKind::Unknown);
    EXPECT_EQ(with({})->kind(), SpecifierKind::Unknown);
    EXPECT_EQ(static_cast<int>(SpecifierKind::Switch), 6);
    EXPECT_EQ(static_cast<int>(SpecifierKind::Button), 13);
    for (auto number = 0; number <= 15; ++number) {
        const auto kind = static_cast<SpecifierKind>(number);
        EXPECT_EQ(specifierKindNamed(nameOf(kind)), kind) << number;
    }
    EXPECT_EQ(nameOf(SpecifierKind::Unknown), "");
}

TEST_F(DesktopSpecifierTest, IsIdentifiedByIdElseKeyElseLabel) {
    EXPECT_EQ(with({{"id", "i"}, {"key", "k"}, {"label", "l"}})->identifier(), "i");
    EXPECT_EQ(with({{"id", 3}, {"key", "k"}, {"label", "l"}})->identifier(), "k");
    EXPECT_EQ(with({{"id", ""}, {"label", "l"}})->identifier(), "l");
    EXPECT_EQ(with({})->identifier(), "");
}

TEST_F(DesktopSpecifierTest, HeightsAreNumbersOfAReasonableSize) {
    EXPECT_EQ(with({{"height", 60}})->height(), 60);
    EXPECT_EQ(with({{"height", 0}})->height(), 0);
    EXPECT_EQ(with({{"height", 52.5}})->height(), 52.5);
    const auto infinity = std::numeric_limits<double>::infinity();
    for (const PropertyList& wrong :
         {PropertyList(-1), PropertyList("60"), PropertyList(true), PropertyList(1e9), PropertyList(infinity),
          PropertyList(-infinity), PropertyList(std::numeric_limits<double>::quiet_NaN())})
        EXPECT_EQ(with({{"height", wrong}})->height(), std::nullopt) << wrong.description();
}

TEST_F(DesktopSpecifierTest, ReadsBooleansAsThePlatformDoes) {
    EXPECT_TRUE(with({})->isEnabled());
    EXPECT_FALSE(with({{"enabled", false}})->isEnabled());
    EXPECT_FALSE(with({{"enabled", 0}})->isEnabled());
    EXPECT_FALSE(with({{"enabled", "NO"}})->isEnabled());
    EXPECT_TRUE(with({{"enabled", "YES"}})->isEnabled());
    EXPECT_TRUE(with({{"enabled", PropertyList::Array{}}})->isEnabled());
}

TEST_F(DesktopSpecifierTest, TellsItsProperties) {
    const auto specifier = with({{"label", "text"}, {"number", 7}});
    EXPECT_EQ(specifier->label(), "text");
    EXPECT_EQ(specifier->propertyForKey("number"), PropertyList(7));
    EXPECT_EQ(specifier->propertyForKey("other"), std::nullopt);
}

TEST_F(DesktopSpecifierTest, AsksTheTargetForItsValue) {
    EXPECT_EQ(targeted({})->performGetter(), PropertyList(5));
    EXPECT_EQ(targeted({{"get", "own:"}, {"own", "mine"}})->performGetter(), PropertyList("mine"));
    EXPECT_EQ(targeted({{"get", "own:"}})->performGetter(), std::nullopt);
}

TEST_F(DesktopSpecifierTest, TellsTheTargetItsValue) {
    targeted({})->performSetter(3);
    targeted({})->performSetter(std::nullopt);
    EXPECT_EQ(target_->events, (std::vector<std::string>{"set 3 with its row", "set nothing with its row"}));
}

TEST_F(DesktopSpecifierTest, PerformsItsAction) {
    targeted({{"action", "act"}})->performAction();
    targeted({{"buttonAction", "act"}})->performAction();
    targeted({})->performAction();
    EXPECT_EQ(target_->events.size(), 2U);
}

TEST_F(DesktopSpecifierTest, MessagesThatTheTargetLacksAreLoggedOnce) {
    const auto specifier = targeted({{"get", "nothing:"}});
    EXPECT_EQ(specifier->performGetter(), std::nullopt);
    EXPECT_EQ(specifier->performGetter(), std::nullopt);
    targeted({{"set", "nothing:"}})->performSetter(1);
    targeted({{"action", "nothing"}})->performAction();
    EXPECT_EQ(device_.log().take().size(), 3U);
}

TEST_F(DesktopSpecifierTest, OutlivesItsTarget) {
    const auto specifier = targeted({{"action", "act"}});
    target_ = nullptr;
    EXPECT_FALSE(specifier->target());
    EXPECT_EQ(specifier->performGetter(), std::nullopt);
    specifier->performAction();
    specifier->performSetter(1);
}
