#include "Version.h"

#include <gtest/gtest.h>

TEST(Version, IsTheOneThatIsBuilt) {
    EXPECT_STREQ(corvexVersion, "3.0.1");
    EXPECT_STREQ(corvexVersion, PROJECT_VERSION);
}
