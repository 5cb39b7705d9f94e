#pragma once

#include <string>
#include <vector>

/// The names under which a bundle may keep its texts for a locale, the most specific first, each with hyphens
/// and with underscores: "zh-Hans-CN", "zh_Hans_CN", "zh-CN", "zh_CN", "zh-Hans", "zh_Hans", "zh" for
/// "zh_CN". A name that would stand for another script is left out, such as "zh" for "zh_TW". Empty without a
/// language.
[[nodiscard]] std::vector<std::string> languageNames(const std::string& locale);

/// Whether a locale's language is read from right to left, as Arabic is.
[[nodiscard]] bool isReadFromRightToLeft(const std::string& locale);

/// What a locale is called in its own language: "Deutsch (Deutschland)".
[[nodiscard]] std::string nameOfLocale(const std::string& locale);
