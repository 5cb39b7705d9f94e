// In the place of the system's library: tells who is to be ended, and how.

#include "CoreFoundation/CFString.h"

#include <array>
#include <cstdio>

extern "C" void addToJournal(const char* line);
extern "C" const char* textOfString(CFStringRef string);

extern "C" [[gnu::visibility("default")]] void
BKSTerminateApplicationForReasonAndReportWithDescription(CFStringRef identifier, int reason, bool report,
                                                         CFStringRef description);

void BKSTerminateApplicationForReasonAndReportWithDescription(CFStringRef identifier, int reason, bool report,
                                                              CFStringRef description) {
    std::array<char, 200> line{};
    std::snprintf(line.data(), line.size(), "terminate %s %d %d %s", textOfString(identifier), reason,
                  report ? 1 : 0, description == nullptr ? "null" : "described");
    addToJournal(line.data());
}
