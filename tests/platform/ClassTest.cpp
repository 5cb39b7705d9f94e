#include "ObjectiveC/Class.h"

#include "ObjectiveC/ClassTable.h"
#include "system/LogRecorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

class Animal : public NSObject {
public:
    virtual std::optional<std::string> sound() { return std::nullopt; }
};

class Dog : public Animal {
public:
    std::optional<std::string> sound() override { return "woof"; }

    void fetch() {}
};

class Unstated : public Dog {};

class Refusing : public NSObject {
public:
    [[nodiscard]] bool init() override { return false; }
};

class NeedsArguments : public NSObject {
public:
    explicit NeedsArguments(int /*argument*/) {}
};

const Class animalClass = Class::define<Animal>("TestAnimal", {method<"sound", &Animal::sound>()});
const Class dogClass = Class::define<Dog, Animal>("TestDog", {method<"fetch", &Dog::fetch>()});
const Class refusingClass = Class::define<Refusing>("TestRefusing");
const Class needsArgumentsClass = Class::define<NeedsArguments>("TestNeedsArguments");

} // namespace

TEST(Class, IsFoundByName) {
    EXPECT_EQ(NSClassFromString("TestDog"), &dogClass);
    EXPECT_EQ(NSClassFromString("testdog"), nullptr);
    EXPECT_EQ(NSClassFromString(""), nullptr);
}

TEST(Class, CreatesAnObjectByName) {
    const auto object = NSClassFromString("TestDog")->create();
    EXPECT_TRUE(dynamicCast<Dog>(object));
}

TEST(Class, CreatesNothingWhenInitRefuses) {
    EXPECT_EQ(refusingClass.create(), nullptr);
}

TEST(Class, CreatesNothingThatNeedsArguments) {
    EXPECT_EQ(needsArgumentsClass.create(), nullptr);
}

TEST(Class, AllocatesWithoutInit) {
    EXPECT_TRUE(dynamicCast<Refusing>(refusingClass.allocate()));
    EXPECT_EQ(needsArgumentsClass.allocate(), nullptr);
}

TEST(Class, KnowsItsSuperclass) {
    EXPECT_EQ(dogClass.superclass(), &animalClass);
    EXPECT_EQ(animalClass.superclass(), NSClassFromString("NSObject"));
    EXPECT_EQ(NSClassFromString("NSObject")->superclass(), nullptr);
}

TEST(Class, KnowsWhatItDerivesFrom) {
    EXPECT_TRUE(dogClass.isSubclassOf(animalClass));
    EXPECT_TRUE(dogClass.isSubclassOf(dogClass));
    EXPECT_TRUE(dogClass.isSubclassOf(*NSClassFromString("NSObject")));
    EXPECT_FALSE(animalClass.isSubclassOf(dogClass));
    EXPECT_FALSE(dogClass.isSubclassOf(refusingClass));
}

TEST(Class, InheritsMethodsAndReachesTheOverride) {
    const auto dog = make<Dog>();
    EXPECT_EQ(std::get<PropertyList>(dog->performSelector("sound")), PropertyList("woof"));
    EXPECT_NE(dogClass.instanceMethod("fetch"), nullptr);
    EXPECT_EQ(animalClass.instanceMethod("fetch"), nullptr);
}

TEST(Class, ListsTheSelectorsThatItAdds) {
    ASSERT_EQ(dogClass.methods().size(), 1U);
    EXPECT_EQ(dogClass.methods().front().selector, "fetch");
}

TEST(Class, RefusesANameThatIsTakenAndSaysWhich) {
    LogRecorder log;

    class Other : public NSObject {};

    const Class second = Class::define<Other>("TestDog");
    EXPECT_EQ(log.take(),
              (std::vector<std::string>{"Class TestDog is stated twice; the second is refused."}));
    EXPECT_EQ(NSClassFromString("TestDog"), &dogClass);
}

TEST(Class, RefusesASecondNameForOneClass) {
    LogRecorder log;
    const Class second = Class::define<Dog, Animal>("TestHound");
    EXPECT_EQ(log.take(),
              (std::vector<std::string>{"Class TestHound is stated twice; the second is refused."}));
    EXPECT_EQ(NSClassFromString("TestHound"), nullptr);
}

TEST(Class, TheEndOfARefusedStatementLeavesTheFirst) {
    {
        const Class second = Class::define<Dog, Animal>("TestDog");
        EXPECT_EQ(second.name(), "TestDog");
    }
    EXPECT_EQ(NSClassFromString("TestDog"), &dogClass);
    EXPECT_EQ(&make<Dog>()->isa(), &dogClass);
}

TEST(Class, LeavesTheTableWithTheCodeThatStatesIt) {
    class Passing : public Dog {};

    const auto object = make<Passing>();
    EXPECT_EQ(object->isa().name(), "TestDog");
    {
        const Class passing = Class::define<Passing, Dog>("TestPassing");
        EXPECT_EQ(&object->isa(), &passing);
        EXPECT_EQ(NSClassFromString("TestPassing"), &passing);
    }
    EXPECT_EQ(NSClassFromString("TestPassing"), nullptr);
    EXPECT_EQ(object->isa().name(), "TestDog");
}

TEST(Class, AnInstanceOfAnUnstatedClassIsOfTheMostDerivedStatedOne) {
    EXPECT_EQ(&make<Unstated>()->isa(), &dogClass);
}

TEST(ClassTable, ListsEveryClassOnce) {
    const auto all = ClassTable::shared().all();
    EXPECT_EQ(std::ranges::count(all, &dogClass), 1);
    EXPECT_EQ(std::ranges::count(all, NSClassFromString("NSObject")), 1);
}
