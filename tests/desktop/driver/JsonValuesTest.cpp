#include "JsonValues.h"

#include "ColorComponents.h"
#include "time/UnixTime.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <string>

namespace {

std::string compact(const QJsonValue& value) {
    const auto text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
    return text.substr(1, text.size() - 2);
}

TEST(JsonValues, WritesGeometryAndColoursAsLists) {
    EXPECT_EQ(compact(jsonOf(CGRectMake(1, 2.5, 30, 40))), "[1,2.5,30,40]");
    EXPECT_EQ(compact(jsonOf(CGSize{390, 844})), "[390,844]");
    EXPECT_EQ(compact(jsonOf(ColorComponents{1, 0.5, 0, 0.25})), "[1,0.5,0,0.25]");
}

TEST(JsonValues, WritesEveryKindOfValue) {
    const PropertyList::Dictionary values{
        {"boolean", true},
        {"data", NSData::dataWithBytes("hi!")},
        {"date", dateOfUnixTime(1794798720.25)},
        {"integer", -3},
        {"list", PropertyList::Array{1, "a\nb", 0.5}},
    };
    EXPECT_EQ(compact(jsonOf(PropertyList(values))),
              R"({"boolean":true,"data":"aGkh","date":"2026-11-16T03:12:00.250Z","integer":-3,)"
              R"("list":[1,"a\nb",0.5]})");
}

TEST(JsonValues, WritesNoValueAsNull) {
    EXPECT_EQ(compact(jsonOf(std::optional<PropertyList>())), "null");
}

TEST(JsonValues, WritesDamagedTextAsText) {
    EXPECT_EQ(compact(jsonOfText("a\xff")), "\"a\xef\xbf\xbd\"");
}

TEST(JsonValues, ReadsEveryKindOfValue) {
    EXPECT_EQ(propertyListFromJson("true"), PropertyList(true));
    EXPECT_EQ(propertyListFromJson("-3"), PropertyList(-3));
    EXPECT_EQ(propertyListFromJson("0.5"), PropertyList(0.5));
    EXPECT_EQ(propertyListFromJson("\"a b\""), PropertyList("a b"));
    EXPECT_EQ(propertyListFromJson(R"([1,{"k":false}])"),
              PropertyList(PropertyList::Array{1, PropertyList::Dictionary{{"k", false}}}));
}

TEST(JsonValues, ReadsNullAsNoValue) {
    const auto value = propertyListFromJson("null");
    ASSERT_TRUE(value);
    EXPECT_EQ(*value, std::nullopt);
}

class NoJson : public testing::TestWithParam<const char*> {};

TEST_P(NoJson, IsRefused) {
    EXPECT_FALSE(propertyListFromJson(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Texts, NoJson,
                         testing::Values("", "tru", "True", "1 2", "1,2", "1],[2", "]", "\"a", "'a'", "{a:1}",
                                         "nan", "[null]", R"({"a":null})", "1e999"));

TEST(JsonValues, RefusesLevelsWithoutEnd) {
    EXPECT_FALSE(propertyListFromJson(std::string(100'000, '[')));
    EXPECT_FALSE(propertyListFromJson(std::string(5'000, '[') + std::string(5'000, ']')));
}

} // namespace
