#pragma once

#include "ObjectiveC/NSObject.h"

/// What can take part in the handling of events: views and view controllers.
class UIResponder : public NSObject {};
