#include "CoreFoundation/CFString.h"

#include "objects/CFStringObject.h"

CFString::CFString(std::string_view text) : object_(new CFStringObject{std::string(text)}) {}

CFString::~CFString() {
    delete object_;
}
