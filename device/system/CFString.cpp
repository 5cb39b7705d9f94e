#include "CoreFoundation/CFString.h"

#include "Text.h"

// A string object serves as either.

CFString::CFString(std::string_view text)
    : object_(reinterpret_cast<CFStringRef>(objc_retain(textObject(text)))) {}

CFString::~CFString() {
    // NOLINTNEXTLINE(*-pro-type-const-cast): to the C functions it is constant
    objc_release(reinterpret_cast<id>(const_cast<CFStringObject*>(object_)));
}
