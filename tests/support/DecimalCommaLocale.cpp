#include "DecimalCommaLocale.h"

#include "ChildProgram.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr auto localeName = "de_DE.UTF-8";

locale_t makeLocale(const std::string& folder) {
    ChildProgram("/usr/bin/localedef", {"-i", "de_DE", "-f", "UTF-8", folder + "/" + localeName}).wait();
    setenv("LOCPATH", folder.c_str(), 1);
    auto* const made = newlocale(LC_ALL_MASK, localeName, nullptr);
    unsetenv("LOCPATH");
    if (made == nullptr) {
        std::fputs("localedef cannot make a locale: are the locale sources installed?\n", stderr);
        std::abort();
    }
    return made;
}

} // namespace

DecimalCommaLocale::DecimalCommaLocale()
    : locale_(makeLocale(folder_.path())),
      previous_(uselocale(locale_)) {}

DecimalCommaLocale::~DecimalCommaLocale() {
    uselocale(previous_);
    freelocale(locale_);
}
