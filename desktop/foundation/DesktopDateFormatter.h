#pragma once

#include "Foundation/NSDateFormatter.h"

#include <string>

/// A date formatter on ICU's patterns and locale data. Made by `NSDateFormatter::dateFormatter`.
class DesktopDateFormatter final : public NSDateFormatter {
public:
    /// Shows those parts of a date, such as "EEEdMMM", in the order of the device's language.
    void setDateFormatFromTemplate(const std::string& parts);

    // NSDateFormatter:
    void setDateFormat(std::string_view pattern) override { pattern_ = pattern; }

    void setDateStyle(NSDateFormatterStyle style) override { dateStyle_ = style; }

    void setTimeStyle(NSDateFormatterStyle style) override { timeStyle_ = style; }

    [[nodiscard]] std::string stringFromDate(NSDate date) const override;

private:
    std::string pattern_;
    NSDateFormatterStyle dateStyle_ = NSDateFormatterStyle::None;
    NSDateFormatterStyle timeStyle_ = NSDateFormatterStyle::None;
};
