#include "ApplicationTermination.h"

ApplicationTermination& ApplicationTermination::shared() {
    static ApplicationTermination termination;
    return termination;
}

void ApplicationTermination::request(const Request& request) const {
    if (const auto handler = handler_)
        handler(request);
}
