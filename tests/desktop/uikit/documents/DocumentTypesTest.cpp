#include "documents/DocumentTypes.h"

#include <gtest/gtest.h>

TEST(DocumentTypesTest, DataIsEveryFile) {
    EXPECT_TRUE(isOfOneOf({"public.archive", "public.data"}, "a"));
    EXPECT_FALSE(isOfOneOf({}, "a.gz"));
}

TEST(DocumentTypesTest, ANameTellsTypesByItsEndInAnyCase) {
    EXPECT_TRUE(isOfOneOf({"org.gnu.gnu-zip-tar"}, "a.Tar.gZ"));
    EXPECT_TRUE(isOfOneOf({"org.gnu.gnu-zip-tar"}, "a.tgz"));
    EXPECT_FALSE(isOfOneOf({"org.gnu.gnu-zip-tar"}, "a.gz"));
    EXPECT_TRUE(isOfOneOf({"org.gnu.gnu-zip"}, "a.gz"));
    EXPECT_TRUE(isOfOneOf({"public.tar-archive"}, "a.tar"));
    EXPECT_TRUE(isOfOneOf({"public.archive"}, "a.tar"));
    EXPECT_FALSE(isOfOneOf({"public.archive"}, "tar"));
}
