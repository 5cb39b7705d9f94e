#include "BundleCode.h"

#include "BundleFixture.h"
#include "ObjectiveC/Class.h"

#include <sys/stat.h>

#include <string>

namespace {

class BundleCodeTest : public BundleFixture {
protected:
    using BundleFixture::BundleFixture;

    /// Why a file of these bytes cannot be loaded; "" when it is loaded.
    [[nodiscard]] std::string problemWith(const std::string& bytes) const {
        device.write("/code", bytes);
        const auto code = BundleCode::load("/code");
        return code ? "" : code.error();
    }
};

class GermanBundleCodeTest : public BundleCodeTest {
protected:
    GermanBundleCodeTest() : BundleCodeTest({.locale = "de_DE"}) {}
};

} // namespace

TEST_F(BundleCodeTest, ClassesAreThereForAsLongAsTheCodeIsLoaded) {
    device.write("/code", builtCode("StandInPage"));
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr);
    {
        const auto code = BundleCode::load("/code");
        ASSERT_TRUE(code) << code.error();
        EXPECT_NE(NSClassFromString("standInPage"), nullptr);
    }
    EXPECT_EQ(NSClassFromString("standInPage"), nullptr);
}

TEST_F(BundleCodeTest, SaysWhichSymbolNobodyDefines) {
    EXPECT_EQ(problemWith(builtCode("MissingSymbol")),
              "/code cannot be loaded: nothing defines “promisedByNobody(int)”.");
    EXPECT_EQ(NSClassFromString("unfinishedPage"), nullptr);
}

TEST_F(BundleCodeTest, SaysThatThereIsNoFile) {
    const auto code = BundleCode::load("/nowhere");
    ASSERT_FALSE(code);
    EXPECT_EQ(code.error(), "There is no code at /nowhere.");
}

TEST_F(BundleCodeTest, SaysWhatIsWrongWithTheFile) {
    EXPECT_EQ(problemWith(""), "/code is empty.");
    EXPECT_EQ(problemWith("no code"), "/code is no library.");
    const auto whole = builtCode("StandInPage");
    EXPECT_EQ(problemWith(whole.substr(0, 5000)), "/code is cut short.");
}

TEST_F(BundleCodeTest, SaysThatAFolderOrAPipeIsNoFile) {
    ASSERT_EQ(mkdir(device.hostPath("/folder").c_str(), 0700), 0);
    ASSERT_EQ(mkfifo(device.hostPath("/pipe").c_str(), 0600), 0);
    for (const auto* path : {"/folder", "/pipe"}) {
        const auto code = BundleCode::load(path);
        ASSERT_FALSE(code);
        EXPECT_TRUE(code.error().starts_with(std::string(path) + " cannot be read: ")) << code.error();
    }
}

TEST_F(GermanBundleCodeTest, SaysItInTheDevicesLanguage) {
    EXPECT_EQ(BundleCode::load("/nowhere").error(), "Unter /nowhere ist kein Code.");
    EXPECT_EQ(problemWith(""), "/code ist leer.");
    EXPECT_EQ(problemWith("no code"), "/code ist keine Bibliothek.");
    EXPECT_EQ(problemWith(builtCode("StandInPage").substr(0, 5000)), "/code ist nicht vollständig.");
    EXPECT_EQ(problemWith(builtCode("MissingSymbol")),
              "/code kann nicht geladen werden: „promisedByNobody(int)“ ist nirgends definiert.");
}
