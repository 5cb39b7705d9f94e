#pragma once

#include "ObjectiveC/NSObject.h"

class UIView;

/// A gesture recogniser as the view that keeps it alive knows it.
class AttachedRecognizer : public NSObject {
public:
    /// Called when it is added to the view.
    virtual void attachTo(UIView& view) = 0;
    /// Called while the view ends.
    virtual void viewIsGone() = 0;
};
