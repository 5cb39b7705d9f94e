#pragma once

#include <string>

/// While it lives, the process's locale takes texts for UTF-8, as that of the program does.
class Utf8Locale {
public:
    Utf8Locale();
    ~Utf8Locale();
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;

private:
    std::string previous_;
};
