#include "Foundation/NSError.h"

#include "Foundation/Format.h"
#include "ObjectiveC/Class.h"

#include <gtest/gtest.h>

#include <string>

namespace {

PropertyList::Dictionary info(const std::string& text) {
    return {{std::string(NSLocalizedDescriptionKey), text}};
}

} // namespace

TEST(NSError, CarriesDomainCodeAndUserInfo) {
    const auto error =
        NSError::errorWithDomain("com.orvel.corvex", 2, info("Failed to open archive for reading"));
    EXPECT_EQ(error->domain(), "com.orvel.corvex");
    EXPECT_EQ(error->code(), 2);
    EXPECT_EQ(error->localizedDescription(), "Failed to open archive for reading");
    EXPECT_EQ(error->isa().name(), "NSError");
}

TEST(NSError, TellsTheUserItsText) {
    EXPECT_EQ(NSError::errorWithDomain("d", 1, info("Failed"))->localizedDescription(), "Failed");
}

TEST(NSError, WithoutATextTellsDomainAndCode) {
    const std::string expected = "The operation couldn’t be completed. (com.orvel.corvex error 7.)";
    EXPECT_EQ(NSError::errorWithDomain("com.orvel.corvex", 7)->localizedDescription(), expected);
    const PropertyList::Dictionary noText{{std::string(NSLocalizedDescriptionKey), 5}};
    EXPECT_EQ(NSError::errorWithDomain("com.orvel.corvex", 7, noText)->localizedDescription(), expected);
}

TEST(NSError, DescribesItselfForTheLog) {
    EXPECT_EQ(NSError::errorWithDomain("d", 1, info("Failed"))->description(),
              "Error Domain=d Code=1 \"Failed\"");
}

TEST(NSError, HasATextForTheLogThatTheUserDoesNotRead) {
    auto userInfo = info("„a“ konnte nicht entfernt werden.");
    userInfo.emplace(NSDebugDescriptionErrorKey, "“a” couldn’t be removed.");
    const auto error = NSError::errorWithDomain("d", 4, userInfo);
    EXPECT_EQ(error->localizedDescription(), "„a“ konnte nicht entfernt werden.");
    EXPECT_EQ(error->description(), "Error Domain=d Code=4 \"“a” couldn’t be removed.\"");
}

TEST(NSError, DescribesWhatItKnowsBesides) {
    auto userInfo = info("“a” couldn’t be removed.");
    userInfo.emplace(NSFilePathErrorKey, "/b/a");
    const auto cause = NSError::errorWithDomain(NSPOSIXErrorDomain, 2, info("No such file or directory"));
    const auto error = NSError::errorWithDomain(NSCocoaErrorDomain, 4, userInfo, cause);
    EXPECT_EQ(
        stringWithFormat("%@", error),
        "Error Domain=NSCocoaErrorDomain Code=4 \"“a” couldn’t be removed.\" UserInfo={NSFilePath=/b/a, "
        "NSUnderlyingError={Error Domain=NSPOSIXErrorDomain Code=2 \"No such file or directory\"}}");
}
