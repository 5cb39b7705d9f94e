// The resolver with a libroot on the device: whole, and with each of its symbols missing in turn.

#include "ChildProgram.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace {

class RootPrefixResolverLibrootTest : public testing::Test {
protected:
    void install(const std::string& libroot) {
        const std::filesystem::path folder = root.path() + "/var/jb/usr/lib";
        std::filesystem::create_directories(folder);
        std::filesystem::copy_file(LIBROOT_FOLDER "/" + libroot + ".dylib", folder / "libroot.dylib");
    }

    /// The answers of a fresh process to the queries.
    std::vector<std::string> ask(const std::vector<std::string>& queries) {
        std::vector<std::string> arguments{root.path()};
        arguments.insert(arguments.end(), queries.begin(), queries.end());
        ChildProgram probe(ROOT_PREFIX_PROBE, arguments);
        std::vector<std::string> answers;
        while (auto line = probe.readLine())
            answers.push_back(std::move(*line));
        EXPECT_EQ(probe.wait(), 0);
        return answers;
    }

    TemporaryFolder root;
};

/// A libroot without one of its symbols.
class WithoutOneSymbol : public RootPrefixResolverLibrootTest,
                         public testing::WithParamInterface<const char*> {};

/// Every accessor, asked once.
const std::vector<std::string> everyAccessor{
    "libroot_get_root_prefix",     "libroot_get_jbroot_prefix",   "libroot_get_boot_uuid",
    "libroot_jbrootpath:/Library", "libroot_rootfspath:/Library",
};

const std::vector<std::string> librootAnswers{
    "/system",
    "/jail",
    "12345678-0000-0000-0000-00000000000B",
    "/from-libroot/Library",
    "/to-libroot/Library",
};

} // namespace

TEST_F(RootPrefixResolverLibrootTest, AWholeLibrootAnswersEverything) {
    install("whole");
    EXPECT_EQ(ask(everyAccessor), librootAnswers);
}

TEST_F(RootPrefixResolverLibrootTest, WithoutLibrootTheFallbacksAnswerEverything) {
    EXPECT_EQ(ask(everyAccessor),
              (std::vector<std::string>{"", "/var/jb", "00000000-0000-0000-0000-000000000000",
                                        "/var/jb/Library", "/Library"}));
}

TEST_F(RootPrefixResolverLibrootTest, ALibrootWithoutAnySymbolLeavesTheFallbacks) {
    install("empty");
    EXPECT_EQ(ask({"libroot_get_jbroot_prefix", "libroot_jbrootpath:/a"}),
              (std::vector<std::string>{"/var/jb", "/var/jb/a"}));
}

TEST_F(RootPrefixResolverLibrootTest, AFileThatIsNoLibraryLeavesTheFallbacks) {
    install("whole");
    std::filesystem::resize_file(root.path() + "/var/jb/usr/lib/libroot.dylib", 100);
    EXPECT_EQ(ask({"libroot_get_jbroot_prefix"}), (std::vector<std::string>{"/var/jb"}));
}

TEST_F(RootPrefixResolverLibrootTest, ALibrootThatCannotBeBoundAtOnceLeavesTheFallbacks) {
    install("unbound");
    EXPECT_EQ(ask({"libroot_get_jbroot_prefix", "libroot_jbrootpath:/a"}),
              (std::vector<std::string>{"/var/jb", "/var/jb/a"}));
}

TEST_P(WithoutOneSymbol, OnlyThatSlotFallsBack) {
    install(std::string("without_") + GetParam());
    const auto answers = ask(everyAccessor);
    ASSERT_EQ(answers.size(), everyAccessor.size());
    for (std::size_t i = 0; i < answers.size(); ++i) {
        const bool isMissing = everyAccessor[i].starts_with(GetParam());
        EXPECT_EQ(answers[i] != librootAnswers[i], isMissing)
            << everyAccessor[i] << " answered " << answers[i];
    }
}

INSTANTIATE_TEST_SUITE_P(EachSymbol, WithoutOneSymbol,
                         testing::Values("libroot_get_root_prefix", "libroot_get_jbroot_prefix",
                                         "libroot_get_boot_uuid", "libroot_jbrootpath", "libroot_rootfspath"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_F(RootPrefixResolverLibrootTest, TheFallbackConversionUsesLibrootsPrefix) {
    install("without_libroot_jbrootpath");
    EXPECT_EQ(ask({"libroot_jbrootpath:/Library", "libroot_jbrootpath:relative"}),
              (std::vector<std::string>{"/jail/Library", "relative"}));
}

TEST_F(RootPrefixResolverLibrootTest, TheFallbackReverseConversionUsesLibrootsPrefixes) {
    install("without_libroot_rootfspath");
    EXPECT_EQ(
        ask({"libroot_rootfspath:/jail/etc", "libroot_rootfspath:/etc", "libroot_rootfspath:/var/jb/etc",
             "libroot_rootfspath:/jailx", "libroot_rootfspath:jail/etc"}),
        (std::vector<std::string>{"/etc", "/system/etc", "/system/var/jb/etc", "x", "jail/etc"}));
}

TEST_F(RootPrefixResolverLibrootTest, TheTextConversionTakesWhatLibrootReturnsWhereverItIs) {
    install("whole");
    EXPECT_EQ(ask({"jailbreakRootPath:/a", "jailbreakRootPath:/own"}),
              (std::vector<std::string>{"/from-libroot/a", "/answered/elsewhere"}));
}

TEST_F(RootPrefixResolverLibrootTest, TheTextConversionOfNullOrInvalidTextIsNothing) {
    install("whole");
    EXPECT_EQ(ask({"jailbreakRootPath:/null", "jailbreakRootPath:/invalid"}),
              (std::vector<std::string>{"(nothing)", "(nothing)"}));
}

TEST_F(RootPrefixResolverLibrootTest, ManyThreadsAtOnceAreAllAnsweredByTheLibrary) {
    install("whole");
    EXPECT_EQ(ask({"threads"}), (std::vector<std::string>{"/from-libroot/a /system"}));
}

TEST_F(RootPrefixResolverLibrootTest, TheLibraryIsOpenedOnceAndStaysOpen) {
    install("whole");
    EXPECT_EQ(ask({"threads", "libroot_get_boot_uuid", "opens"}),
              (std::vector<std::string>{"/from-libroot/a /system", librootAnswers[2], "1"}));
}
