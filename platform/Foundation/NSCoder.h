#pragma once

#include "ObjectiveC/NSObject.h"

/// The archive that an object is read from. Only handed on to a base class.
class NSCoder : public NSObject {};
