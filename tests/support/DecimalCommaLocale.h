#pragma once

#include "TestDevice.h"

#include <string>

/// While it lives, the process's locale writes 0.5 as 0,5. Made from the host's locale sources.
class DecimalCommaLocale {
public:
    DecimalCommaLocale();
    ~DecimalCommaLocale();
    DecimalCommaLocale(const DecimalCommaLocale&) = delete;
    DecimalCommaLocale& operator=(const DecimalCommaLocale&) = delete;

private:
    TemporaryFolder folder_; ///< of the compiled locale
    std::string previous_;
};
