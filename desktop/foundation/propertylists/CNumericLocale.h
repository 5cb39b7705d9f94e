#pragma once

#include <locale.h>

/// While it lives, the calling thread reads and writes numbers as the C locale does: a host program may have
/// taken the user's locale, where 0.5 is written 0,5, and libplist follows that.
class CNumericLocale {
public:
    CNumericLocale() : previous_(uselocale(shared())) {}

    ~CNumericLocale() { uselocale(previous_); }

    CNumericLocale(const CNumericLocale&) = delete;
    CNumericLocale& operator=(const CNumericLocale&) = delete;

private:
    static locale_t shared() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t previous_;
};
