#pragma once

#include "ObjectiveC/NSObject.h"

/// What can take part in the handling of events: views and view controllers.
class UIResponder : public NSObject {
public:
    /// Asks for the keyboard. \returns whether it has it now; what takes no text never has
    virtual bool becomeFirstResponder();
};
