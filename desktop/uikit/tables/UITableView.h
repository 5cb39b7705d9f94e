#pragma once

#include "scrolling/UIScrollView.h"

/// A list of rows in cards, below each other in sections. What it shows and what its rows do its content
/// says, which is set on its peer.
class UITableView final : public UIScrollView {
public:
    UITableView();
};
