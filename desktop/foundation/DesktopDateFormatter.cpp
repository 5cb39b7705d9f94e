#include "DesktopDateFormatter.h"

#include "Device.h"
#include "time/UnixTime.h"

#include <unicode/dtptngen.h>
#include <unicode/resbund.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <cmath>
#include <memory>

namespace {

/// The locale if there is data for it or its language, else the root: ICU by itself would go on with the
/// host's locale, which is not the device's.
icu::Locale deviceLocale() {
    const icu::Locale locale(Device::current().locale().c_str());
    UErrorCode status = U_ZERO_ERROR;
    const icu::ResourceBundle data(nullptr, locale, status);
    return U_FAILURE(status) != 0 || status == U_USING_DEFAULT_WARNING ? icu::Locale::getRoot() : locale;
}

std::unique_ptr<icu::DateFormat> formatOfPattern(const std::string& pattern) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern),
                                                          deviceLocale(), status);
    return U_SUCCESS(status) != 0 ? std::move(format) : nullptr;
}

icu::DateFormat::EStyle lengthOf(NSDateFormatterStyle style) {
    return style == NSDateFormatterStyle::Short ? icu::DateFormat::kShort : icu::DateFormat::kNone;
}

std::unique_ptr<icu::DateFormat> formatOfStyles(NSDateFormatterStyle date, NSDateFormatterStyle time) {
    if (date == NSDateFormatterStyle::None && time == NSDateFormatterStyle::None)
        return nullptr;
    return std::unique_ptr<icu::DateFormat>(
        icu::DateFormat::createDateTimeInstance(lengthOf(date), lengthOf(time), deviceLocale()));
}

} // namespace

Ref<NSDateFormatter> NSDateFormatter::dateFormatter() {
    return make<DesktopDateFormatter>();
}

void DesktopDateFormatter::setDateFormatFromTemplate(const std::string& parts) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(deviceLocale(), status));
    pattern_.clear();
    if (U_SUCCESS(status) != 0)
        generator->getBestPattern(icu::UnicodeString::fromUTF8(parts), status).toUTF8String(pattern_);
}

std::string DesktopDateFormatter::stringFromDate(NSDate date) const {
    const auto format = pattern_.empty() ? formatOfStyles(dateStyle_, timeStyle_) : formatOfPattern(pattern_);
    const double milliseconds = unixTimeOf(date) * 1000;
    if (format == nullptr || std::isnan(milliseconds))
        return {};
    format->adoptTimeZone(icu::TimeZone::createTimeZone(Device::current().timeZone().c_str()));
    icu::UnicodeString text;
    format->format(milliseconds, text);
    std::string result;
    return text.toUTF8String(result);
}
