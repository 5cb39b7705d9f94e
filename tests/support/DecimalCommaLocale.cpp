#include "DecimalCommaLocale.h"

#include "ChildProgram.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr auto localeName = "de_DE.UTF-8";

/// `setlocale`, as `newlocale` never frees the list of folders it makes of LOCPATH.
void setLocaleMadeIn(const std::string& folder) {
    ChildProgram("/usr/bin/localedef", {"-i", "de_DE", "-f", "UTF-8", folder + "/" + localeName}).wait();
    setenv("LOCPATH", folder.c_str(), 1);
    const auto* const set = std::setlocale(LC_ALL, localeName);
    unsetenv("LOCPATH");
    if (set == nullptr) {
        std::fputs("localedef cannot make a locale: are the locale sources installed?\n", stderr);
        std::abort();
    }
}

} // namespace

DecimalCommaLocale::DecimalCommaLocale() : previous_(std::setlocale(LC_ALL, nullptr)) {
    setLocaleMadeIn(folder_.path());
}

DecimalCommaLocale::~DecimalCommaLocale() {
    std::setlocale(LC_ALL, previous_.c_str());
}
