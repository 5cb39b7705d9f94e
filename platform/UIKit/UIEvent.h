#pragma once

#include "ObjectiveC/NSObject.h"

/// What the system tells at one moment about the fingers on the screen. Only handed on to a base class.
class UIEvent : public NSObject {};
