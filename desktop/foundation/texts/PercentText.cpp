#include "texts/PercentText.h"

#include <unicode/numberformatter.h>

std::string percentText(double part, const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    icu::number::NumberFormatter::withLocale(icu::Locale(locale.c_str()))
        .unit(icu::NoUnit::percent())
        .scale(icu::number::Scale::powerOfTen(2))
        .precision(icu::number::Precision::integer())
        .formatDouble(part, status)
        .toString(status)
        .toUTF8String(text);
    return text;
}
