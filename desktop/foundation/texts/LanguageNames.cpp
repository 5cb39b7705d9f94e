#include "texts/LanguageNames.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <array>

namespace {

std::string likelyScript(icu::Locale locale) {
    UErrorCode status = U_ZERO_ERROR;
    locale.addLikelySubtags(status);
    return locale.getScript();
}

struct Subtags {
    std::string language;
    std::string script;
    std::string region;
};

std::string joined(const Subtags& subtags, char separator) {
    std::string name = subtags.language;
    for (const auto& subtag : {subtags.script, subtags.region}) {
        if (!subtag.empty())
            name += separator + subtag;
    }
    return name;
}

void add(std::vector<std::string>& names, const Subtags& subtags) {
    for (const char separator : {'-', '_'}) {
        if (auto name = joined(subtags, separator); names.empty() || names.back() != name)
            names.push_back(std::move(name));
    }
}

} // namespace

std::vector<std::string> languageNames(const std::string& locale) {
    const icu::Locale given(locale.c_str());
    const std::string language = given.getLanguage();
    const std::string script = likelyScript(given);
    if (language.empty())
        return {};
    std::vector<std::string> names;
    const auto addForRegion = [&](const std::string& region) {
        if (!script.empty())
            add(names, {language, script, region});
        if (likelyScript(icu::Locale(language.c_str(), region.c_str())) == script)
            add(names, {language, "", region});
    };
    if (const std::string region = given.getCountry(); !region.empty())
        addForRegion(region);
    addForRegion("");
    return names;
}

bool isReadFromRightToLeft(const std::string& locale) {
    return icu::Locale(locale.c_str()).isRightToLeft() != 0;
}

std::string nameOfLocale(const std::string& locale) {
    const icu::Locale named(locale.c_str());
    icu::UnicodeString name;
    std::string result;
    return named.getDisplayName(named, name).toUTF8String(result);
}
