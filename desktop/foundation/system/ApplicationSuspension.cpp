#include "system/ApplicationSuspension.h"

void ApplicationSuspension::request() const {
    if (const auto handler = handler_)
        handler();
}
