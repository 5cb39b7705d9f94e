#pragma once

#include "UIKit/UIScrollView.h"

/// A row's height that follows from what its cell shows.
constexpr double UITableViewAutomaticDimension = -1;

/// A list of rows below each other, in sections.
class UITableView : public UIScrollView {
public:
    UITableView();

    /// Changes between the first begin and the last end go together. Without any, the rows' heights are asked
    /// for anew, and the rows slide to their places.
    void beginUpdates();
    void endUpdates();
};
