#include "Utf8Locale.h"

#include <gtest/gtest.h>

#include <clocale>

Utf8Locale::Utf8Locale() : previous_(std::setlocale(LC_ALL, nullptr)) {
    EXPECT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
}

Utf8Locale::~Utf8Locale() {
    std::setlocale(LC_ALL, previous_.c_str());
}
