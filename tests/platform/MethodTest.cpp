#include "ObjectiveC/Method.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

class Receiver : public NSObject {
public:
    bool flag(bool value) { return !value; }

    long count(long value) { return value + 1; }

    [[nodiscard]] double size(double value) const { return value * 2; }

    std::optional<std::string> name(const std::optional<std::string>& value) { return value; }

    std::optional<PropertyList> value(std::optional<PropertyList> value) { return value; }

    Ref<Receiver> self(const Ref<Receiver>& value) { return value; }

    std::vector<Ref<Receiver>> reversed(std::vector<Ref<Receiver>> values) {
        std::ranges::reverse(values);
        return values;
    }

    std::optional<std::vector<std::string>> texts(std::optional<std::vector<std::string>> values) {
        return values;
    }

    std::function<void()> block(std::function<void()> value) { return value; }

    void store(const std::optional<PropertyList>& value, const Ref<NSObject>& owner) {
        stored = value.has_value() && owner != nullptr;
    }

    bool stored = false;
};

class Stranger : public NSObject {};

constexpr Method flagMethod = method<"flag:", &Receiver::flag>();
constexpr Method countMethod = method<"count:", &Receiver::count>();
constexpr Method sizeMethod = method<"size:", &Receiver::size>();
constexpr Method nameMethod = method<"name:", &Receiver::name>();
constexpr Method valueMethod = method<"value:", &Receiver::value>();
constexpr Method selfMethod = method<"self:", &Receiver::self>();
constexpr Method reversedMethod = method<"reversed:", &Receiver::reversed>();
constexpr Method textsMethod = method<"texts:", &Receiver::texts>();
constexpr Method blockMethod = method<"block:", &Receiver::block>();
constexpr Method storeMethod = method<"store:owner:", &Receiver::store>();

class MethodTest : public testing::Test {
protected:
    MessageValue call(const Method& method, std::vector<MessageValue> arguments) {
        return method.invoke(*receiver, arguments);
    }

    static MessageValue list(PropertyList held) { return held; }

    Ref<Receiver> receiver = make<Receiver>();
    MessageValue nothing;
};

} // namespace

TEST_F(MethodTest, TellsItsSelectorAndTypes) {
    EXPECT_EQ(storeMethod.selector, "store:owner:");
    EXPECT_EQ(storeMethod.result, MessageType::Nothing);
    EXPECT_EQ(std::vector(storeMethod.parameters.begin(), storeMethod.parameters.end()),
              (std::vector{MessageType::Value, MessageType::Object}));
    EXPECT_EQ(flagMethod.result, MessageType::Boolean);
    EXPECT_EQ(countMethod.result, MessageType::Integer);
    EXPECT_EQ(sizeMethod.result, MessageType::Real);
    EXPECT_EQ(nameMethod.result, MessageType::Text);
    EXPECT_EQ(valueMethod.result, MessageType::Value);
    EXPECT_EQ(selfMethod.result, MessageType::Object);
}

TEST_F(MethodTest, CarriesEveryKindOfValueBothWays) {
    EXPECT_EQ(call(flagMethod, {list(true)}), list(false));
    EXPECT_EQ(call(countMethod, {list(41)}), list(42));
    EXPECT_EQ(call(sizeMethod, {list(1.5)}), list(3.0));
    EXPECT_EQ(call(nameMethod, {list("Töne")}), list("Töne"));
    EXPECT_EQ(call(valueMethod, {list(PropertyList::Array{1, "two"})}), list(PropertyList::Array{1, "two"}));
    EXPECT_EQ(call(selfMethod, {Ref<NSObject>(receiver)}), MessageValue(Ref<NSObject>(receiver)));
}

TEST_F(MethodTest, CarriesListsOfObjectsAndLeavesOutWhatIsOfAnotherClass) {
    const Ref<NSObject> first = receiver;
    const Ref<NSObject> second = make<Receiver>();
    const Ref<NSObject> stranger = make<Stranger>();
    using Objects = std::vector<Ref<NSObject>>;
    EXPECT_EQ(call(reversedMethod, {Objects{first, stranger, second}}), MessageValue(Objects{second, first}));
    EXPECT_EQ(call(reversedMethod, {nothing}), MessageValue(Objects()));
    EXPECT_EQ(reversedMethod.result, MessageType::Objects);
}

TEST_F(MethodTest, CarriesListsOfTextsAsValuesAndLeavesOutWhatIsNone) {
    EXPECT_EQ(call(textsMethod, {list(PropertyList::Array{"a", 2, "b"})}),
              list(PropertyList::Array{"a", "b"}));
    EXPECT_EQ(call(textsMethod, {list(PropertyList::Array())}), list(PropertyList::Array()));
    EXPECT_EQ(call(textsMethod, {list("a")}), nothing);
    EXPECT_EQ(textsMethod.result, MessageType::Value);
}

TEST_F(MethodTest, CarriesBlocksThatAreCalledOnTheOtherSide) {
    int calls = 0;
    const MessageValue sent = std::make_shared<const std::function<void()>>([&calls] { ++calls; });
    const auto answer = call(blockMethod, {sent});
    (*std::get<MessageBlock>(answer))();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(call(blockMethod, {nothing}), nothing);
    EXPECT_EQ(blockMethod.result, MessageType::Block);
    EXPECT_EQ(blockMethod.parameters.front(), MessageType::Block);
}

TEST_F(MethodTest, AbsentTextValuesAndObjectsStayAbsent) {
    EXPECT_EQ(call(nameMethod, {nothing}), nothing);
    EXPECT_EQ(call(valueMethod, {nothing}), nothing);
    EXPECT_EQ(call(selfMethod, {nothing}), nothing);
}

TEST_F(MethodTest, AnArgumentOfAnotherKindArrivesAsNullFalseOrZero) {
    const MessageValue stranger = Ref<NSObject>(make<Stranger>());
    EXPECT_EQ(call(flagMethod, {stranger}), list(true));
    EXPECT_EQ(call(countMethod, {stranger}), list(1));
    EXPECT_EQ(call(sizeMethod, {list("wide")}), list(0.0));
    EXPECT_EQ(call(nameMethod, {list(5)}), nothing);
    EXPECT_EQ(call(selfMethod, {stranger}), nothing);
    EXPECT_EQ(call(selfMethod, {list("text")}), nothing);
}

TEST_F(MethodTest, TakesSeveralArgumentsInOrder) {
    EXPECT_EQ(call(storeMethod, {list(1), Ref<NSObject>(receiver)}), nothing);
    EXPECT_TRUE(receiver->stored);
}
