#include "Foundation/Format.h"

#include "Foundation/NSLog.h"
#include "system/LogRecorder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

TEST(Format, ReplacesEachPlaceholderByItsArgument) {
    EXPECT_EQ(stringWithFormat("%@.tar.gz", std::string("My Settings")), "My Settings.tar.gz");
    EXPECT_EQ(stringWithFormat("%@ • %@", std::string("Corvex"), std::string("3.0.1")), "Corvex • 3.0.1");
    EXPECT_EQ(stringWithFormat("no placeholder"), "no placeholder");
}

TEST(Format, AnAbsentValuePrintsAsNull) {
    EXPECT_EQ(stringWithFormat("%@ • %@", std::optional<std::string>(), std::string("3.0.1")),
              "(null) • 3.0.1");
    EXPECT_EQ(stringWithFormat("%@", Ref<NSObject>()), "(null)");
    EXPECT_EQ(stringWithFormat("%@", std::optional<PropertyList>()), "(null)");
}

TEST(Format, PrintsValuesByTheirDescription) {
    EXPECT_EQ(stringWithFormat("%@ %@", PropertyList(true), NSDate{0}), "1 2001-01-01 00:00:00 +0000");
}

TEST(Format, TwoPercentSignsMakeOne) {
    EXPECT_EQ(stringWithFormat("100%% %@", std::string("sure")), "100% sure");
}

TEST(Format, PlaceholdersInAnArgumentAreText) {
    EXPECT_EQ(stringWithFormat("<%@>", std::string("%@ %% %d")), "<%@ %% %d>");
}

TEST(Format, CountsPlaceholdersAndKnowsNoOtherConversion) {
    EXPECT_EQ(placeholderCount("%@ of %@"), 2U);
    EXPECT_EQ(placeholderCount("100%%"), 0U);
    EXPECT_EQ(placeholderCount("%d"), std::nullopt);
    EXPECT_EQ(placeholderCount("%"), std::nullopt);
}

TEST(Format, WithFewerArgumentsThanPlaceholdersTheRestStands) {
    const std::vector<std::string> one{"a"};
    EXPECT_EQ(replacePlaceholders("%@ %@ %", one), "a %@ %");
}

TEST(NSLog, WritesOneFormattedLine) {
    LogRecorder log;
    NSLog("Error removing file at path %@: %@", std::string("/a"), Ref<NSObject>());
    EXPECT_EQ(log.take(), (std::vector<std::string>{"Error removing file at path /a: (null)"}));
}
