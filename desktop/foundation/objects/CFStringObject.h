#pragma once

#include "CoreFoundation/CFString.h"

#include <string>

/// A text as it is handed to functions of C: what a library of the device that takes one reads.
struct CFStringObject {
    std::string text; ///< UTF-8
};
