#include "DesktopDateFormatter.h"

#include "TestDevice.h"
#include "time/UnixTime.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <limits>

namespace {

constexpr NSDate morning = dateOfUnixTime(1794798720); // 2026-11-16 03:12:00 UTC

using Style = NSDateFormatterStyle;

struct Place {
    std::string locale = "en_US";
    std::string timeZone = "UTC";
};

std::string withPattern(const Place& place, std::string_view pattern, NSDate date = morning) {
    const TestDevice device({.locale = place.locale, .timeZone = place.timeZone});
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateFormat(pattern);
    return formatter->stringFromDate(date);
}

std::string withStyles(const Place& place, Style dateStyle, Style timeStyle, NSDate date = morning) {
    const TestDevice device({.locale = place.locale, .timeZone = place.timeZone});
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateStyle(dateStyle);
    formatter->setTimeStyle(timeStyle);
    return formatter->stringFromDate(date);
}

std::string withParts(const std::string& locale, const std::string& parts) {
    const TestDevice device({.locale = locale, .timeZone = "UTC"});
    const auto formatter = make<DesktopDateFormatter>();
    formatter->setDateFormatFromTemplate(parts);
    return formatter->stringFromDate(morning);
}

std::string inShort(const std::string& locale) {
    return withStyles({locale, "UTC"}, Style::Short, Style::Short);
}

std::string inZone(const std::string& timeZone, double secondsSince1970) {
    return withPattern({"en_US", timeZone}, "yyyy-MM-dd HH:mm:ss", dateOfUnixTime(secondsSince1970));
}

/// The host's locale, for as long as the object lives.
class HostLocale {
public:
    explicit HostLocale(const char* name) { set(icu::Locale(name)); }

    ~HostLocale() { set(before_); }

    HostLocale(const HostLocale&) = delete;
    HostLocale& operator=(const HostLocale&) = delete;

private:
    static void set(const icu::Locale& locale) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locale, status);
        EXPECT_TRUE(U_SUCCESS(status));
    }

    icu::Locale before_;
};

} // namespace

TEST(DesktopDateFormatterTest, ANewFormatterAnswersNothing) {
    const TestDevice device;
    EXPECT_EQ(NSDateFormatter::dateFormatter()->stringFromDate(morning), "");
}

TEST(DesktopDateFormatterTest, FollowsAPattern) {
    EXPECT_EQ(withPattern({}, "yyyyMMdd-HHmm"), "20261116-0312");
    EXPECT_EQ(withPattern({}, "EEEE, d MMMM y, h:mm a"), "Monday, 16 November 2026, 3:12 AM");
}

TEST(DesktopDateFormatterTest, KeepsQuotedTextOfAPattern) {
    EXPECT_EQ(withPattern({}, "'day' d 'o''clock' H"), "day 16 o'clock 3");
    EXPECT_EQ(withPattern({}, "''yyyy''"), "'2026'");
}

TEST(DesktopDateFormatterTest, APatternMayHoldAnyText) {
    EXPECT_EQ(withPattern({}, "yyyy年 😀 – d"), "2026年 😀 – 16");
}

TEST(DesktopDateFormatterTest, APatternGoesBeforeTheStylesAndAnEmptyOneIsNone) {
    const TestDevice device;
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateStyle(Style::Short);
    formatter->setDateFormat("yyyy");
    EXPECT_EQ(formatter->stringFromDate(morning), "2026");
    formatter->setDateFormat("");
    EXPECT_EQ(formatter->stringFromDate(morning), "11/16/26");
}

TEST(DesktopDateFormatterTest, ShowsTheDateTheTimeBothOrNeither) {
    EXPECT_EQ(withStyles({}, Style::Short, Style::None), "11/16/26");
    EXPECT_EQ(withStyles({}, Style::None, Style::Short), "3:12\u202FAM");
    EXPECT_EQ(withStyles({}, Style::Short, Style::Short), "11/16/26, 3:12\u202FAM");
    EXPECT_EQ(withStyles({}, Style::None, Style::None), "");
}

TEST(DesktopDateFormatterTest, WritesAsIsUsualInTheLocale) {
    EXPECT_EQ(inShort("de_DE"), "16.11.26, 03:12");
    EXPECT_EQ(inShort("en_GB"), "16/11/2026, 03:12");
    EXPECT_EQ(inShort("ja_JP"), "2026/11/16 3:12");
}

TEST(DesktopDateFormatterTest, UsesTheDigitsOfTheLocale) {
    EXPECT_EQ(withPattern({"ar_EG", "UTC"}, "yyyyMMdd-HHmm"), "٢٠٢٦١١١٦-٠٣١٢");
}

TEST(DesktopDateFormatterTest, UsesTheCalendarOfTheLocale) {
    EXPECT_EQ(withPattern({"th_TH", "UTC"}, "yyyyMMdd-HHmm"), "25691116-0312");         // Buddhist
    EXPECT_EQ(withPattern({"fa_IR", "UTC"}, "yyyyMMdd-HHmm"), "۱۴۰۵۰۸۲۵-۰۳۱۲");         // Persian
    EXPECT_EQ(withPattern({"de_DE@calendar=buddhist", "UTC"}, "yyyyMMdd"), "25691116"); // as the user chose
}

TEST(DesktopDateFormatterTest, ALocaleWithoutDataOfItsOwnUsesThatOfItsLanguage) {
    EXPECT_EQ(withPattern({"de_XX", "UTC"}, "EEEE"), "Montag");
}

TEST(DesktopDateFormatterTest, AnUnknownLocaleIsTheRootWhateverTheHostUses) {
    const HostLocale host("de_DE");
    EXPECT_EQ(withPattern({"xx_YY", "UTC"}, "MMMM yyyy"), "M11 2026");
    EXPECT_EQ(withPattern({"", "UTC"}, "MMMM yyyy"), "M11 2026");
    EXPECT_EQ(withStyles({"xx_YY", "UTC"}, Style::Short, Style::Short), "2026-11-16 03:12");
    EXPECT_EQ(withPattern({std::string(2000, 'x'), "UTC"}, "MMMM yyyy"), "M11 2026");
}

TEST(DesktopDateFormatterTest, ShowsTheTimeOfTheZone) {
    EXPECT_EQ(inZone("Asia/Kathmandu", 1794798720), "2026-11-16 08:57:00");     // +5:45
    EXPECT_EQ(inZone("Pacific/Kiritimati", 1794798720), "2026-11-16 17:12:00"); // +14
    EXPECT_EQ(inZone("America/New_York", 1794798720), "2026-11-15 22:12:00");   // -5
}

TEST(DesktopDateFormatterTest, FollowsTheZoneIntoAndOutOfDaylightSavingTime) {
    EXPECT_EQ(inZone("America/New_York", 1772953199), "2026-03-08 01:59:59");
    EXPECT_EQ(inZone("America/New_York", 1772953200), "2026-03-08 03:00:00");
    EXPECT_EQ(inZone("America/New_York", 1793512799), "2026-11-01 01:59:59");
    EXPECT_EQ(inZone("America/New_York", 1793512800), "2026-11-01 01:00:00");
}

TEST(DesktopDateFormatterTest, AnUnknownZoneIsUTCAndIsLoggedOnce) {
    TestDevice device({.timeZone = "Nowhere/Atall"});
    const auto formatter = NSDateFormatter::dateFormatter();
    formatter->setDateFormat("HH:mm");
    EXPECT_EQ(formatter->stringFromDate(morning), "03:12");
    EXPECT_EQ(formatter->stringFromDate(morning), "03:12");
    EXPECT_EQ(device.log().take(),
              std::vector<std::string>{"There is no time zone named \"Nowhere/Atall\"; UTC is used."});
}

TEST(DesktopDateFormatterTest, TakesTheSettingsOfTheDeviceAnewForEachText) {
    Ref<NSDateFormatter> formatter;
    {
        const TestDevice device({.locale = "en_US", .timeZone = "UTC"});
        formatter = NSDateFormatter::dateFormatter();
        formatter->setDateFormat("EEEE HH:mm");
        EXPECT_EQ(formatter->stringFromDate(morning), "Monday 03:12");
    }
    const TestDevice device({.locale = "de_DE", .timeZone = "America/New_York"});
    EXPECT_EQ(formatter->stringFromDate(morning), "Sonntag 22:12");
}

TEST(DesktopDateFormatterTest, ShowsDatesBefore1970) {
    EXPECT_EQ(inZone("UTC", -1), "1969-12-31 23:59:59");
    EXPECT_EQ(inZone("UTC", -0.25), "1969-12-31 23:59:59");
    EXPECT_EQ(inZone("UTC", -2208988800), "1900-01-01 00:00:00");
}

TEST(DesktopDateFormatterTest, ShowsDistantDates) {
    EXPECT_EQ(inZone("UTC", 253402300799), "9999-12-31 23:59:59");
    EXPECT_EQ(inZone("UTC", 253402300800), "10000-01-01 00:00:00");
    EXPECT_EQ(inZone("UTC", -62135769600), "0001-01-01 00:00:00"); // of the Julian calendar
}

TEST(DesktopDateFormatterTest, ShowsSomethingForEndlessDatesAndNothingForNone) {
    EXPECT_NE(inZone("UTC", std::numeric_limits<double>::infinity()), "");
    EXPECT_NE(inZone("UTC", -std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(inZone("UTC", std::numeric_limits<double>::quiet_NaN()), "");
}

TEST(DesktopDateFormatterTest, PartsAreInTheOrderOfTheLanguage) {
    EXPECT_EQ(withParts("en_US", "EEEMMMd"), "Mon, Nov 16");
    EXPECT_EQ(withParts("de_DE", "EEEMMMd"), "Mo., 16. Nov.");
    EXPECT_EQ(withParts("ja_JP", "EEEMMMd"), "11月16日(月)");
}
