#include "system/ApplicationTermination.h"

void ApplicationTermination::request(const Request& request) const {
    if (const auto handler = handler_)
        handler(request);
}
