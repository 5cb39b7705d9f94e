#pragma once

#include "Foundation/NSDate.h"
#include "ObjectiveC/NSObject.h"

#include <string>
#include <string_view>

/// How much of a date, or of a time, to show. The numbers are the platform's.
enum class NSDateFormatterStyle : unsigned { None = 0, Short = 1 };

/// Turns moments into text in the device's locale, calendar and time zone, which are taken anew for each
/// text. New formatters have no style and no pattern and answer "".
class NSDateFormatter : public NSObject {
public:
    [[nodiscard]] static Ref<NSDateFormatter> dateFormatter();

    /// A pattern of Unicode's locale data markup, such as "yyyyMMdd-HHmm". Goes before the styles.
    virtual void setDateFormat(std::string_view pattern) = 0;

    virtual void setDateStyle(NSDateFormatterStyle style) = 0;
    virtual void setTimeStyle(NSDateFormatterStyle style) = 0;

    [[nodiscard]] virtual std::string stringFromDate(NSDate date) const = 0;
};
