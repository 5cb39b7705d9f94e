#include "ProgramOptions.h"

#include "time/UnixTime.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Mode = ProgramOptions::Mode;
using Words = std::vector<std::string>;

std::expected<ProgramOptions, std::string> parse(const Words& options) {
    QStringList arguments("corvex-settings");
    for (const auto& option : options)
        arguments.append(QString::fromStdString(option));
    return ProgramOptions::parse(arguments);
}

TEST(ProgramOptions, AreAWindowOnAPhoneByDefault) {
    const auto options = parse({});
    ASSERT_TRUE(options) << options.error();
    EXPECT_EQ(options->mode, Mode::Window);
    EXPECT_EQ(options->idiom, Idiom::Phone);
    EXPECT_TRUE(options->deviceRoot.ends_with("/corvex/device"));
    EXPECT_FALSE(options->install);
    EXPECT_FALSE(options->appearance || options->scale || options->locale || options->timeZone ||
                 options->now);
}

TEST(ProgramOptions, AreAllRead) {
    const auto options = parse({"--drive", "--install", "--device-root", "/tmp/x", "--idiom", "pad",
                                "--appearance=dark", "--scale", "1.5", "--locale", "zh-Hant-TW",
                                "--time-zone", "Europe/Berlin", "--now", "2026-11-16T03:12:00.5Z"});
    ASSERT_TRUE(options) << options.error();
    EXPECT_EQ(options->mode, Mode::Drive);
    EXPECT_TRUE(options->install);
    EXPECT_EQ(options->deviceRoot, "/tmp/x");
    EXPECT_EQ(options->idiom, Idiom::Pad);
    EXPECT_EQ(options->appearance, UserInterfaceStyle::Dark);
    EXPECT_EQ(options->scale, 1.5);
    EXPECT_EQ(options->locale, "zh_Hant_TW");
    EXPECT_EQ(options->timeZone, "Europe/Berlin");
    EXPECT_EQ(unixTimeOf(*options->now), 1794798720.5);
}

TEST(ProgramOptions, AMomentWithoutOffsetIsInTheDevicesZone) {
    const auto inUtc = parse({"--drive", "--now", "2026-11-16T03:12:00"});
    ASSERT_TRUE(inUtc) << inUtc.error();
    EXPECT_EQ(unixTimeOf(*inUtc->now), 1794798720);
    const auto inBerlin = parse({"--drive", "--now", "2026-11-16T04:12:00", "--time-zone", "Europe/Berlin"});
    ASSERT_TRUE(inBerlin) << inBerlin.error();
    EXPECT_EQ(inBerlin->now, inUtc->now);
}

TEST(ProgramOptions, HelpAndVersionGoBeforeTheRest) {
    EXPECT_EQ(parse({"--help", "--drive"})->mode, Mode::Help);
    EXPECT_EQ(parse({"--version"})->mode, Mode::Version);
}

class BadOptions : public testing::TestWithParam<Words> {};

TEST_P(BadOptions, AreRefused) {
    const auto options = parse(GetParam());
    ASSERT_FALSE(options) << testing::PrintToString(GetParam());
    EXPECT_FALSE(options.error().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BadOptions,
    testing::Values(Words{"--nonsense"}, Words{"-d"}, Words{"drive"}, Words{"--drive=1"},
                    Words{"--device-root"}, Words{"--device-root", ""}, Words{"--idiom", "watch"},
                    Words{"--idiom"}, Words{"--appearance", "Dark"}, Words{"--scale", "0"},
                    Words{"--scale", "4"}, Words{"--scale", "nan"}, Words{"--scale", "2x"},
                    Words{"--locale", ""}, Words{"--locale", "de_"}, Words{"--locale", "../x"},
                    Words{"--time-zone", "Nowhere/City"}, Words{"--time-zone", ""},
                    Words{"--drive", "--now", "yesterday"}, Words{"--drive", "--now", "2026-13-01"},
                    Words{"--drive", "--now", "2026-11-16T03:12:00Zx"},
                    Words{"--now", "2026-11-16T03:12:00Z"}));

} // namespace
