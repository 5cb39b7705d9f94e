#include "Device.h"
#include "objects/CFStringObject.h"
#include "system/ApplicationTermination.h"

/// Ends an application. \param report whether to write a crash report \param description may be null
extern "C" [[gnu::visibility("default")]] void
BKSTerminateApplicationForReasonAndReportWithDescription(CFStringRef identifier, int reason, bool report,
                                                         CFStringRef description);

void BKSTerminateApplicationForReasonAndReportWithDescription(CFStringRef identifier, int reason, bool report,
                                                              CFStringRef description) {
    Device::current().terminations().request(
        {.identifier = identifier != nullptr ? identifier->text : "",
         .reason = reason,
         .report = report,
         .description = description != nullptr ? std::optional(description->text) : std::nullopt});
}
