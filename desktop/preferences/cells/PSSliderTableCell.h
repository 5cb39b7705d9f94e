#pragma once

#include "Preferences/PSControlTableCell.h"

/// A row with a slider from edge to edge, for a number from "min" to "max" (0 and 1). "showValue" writes it
/// beside the slider; with "isContinuous" switched off it is written once the finger is lifted;
/// "isSegmented" with "segmentCount" lets it rest at some values alone. The row's label is not drawn.
class PSSliderTableCell final : public PSControlTableCell {
public:
    PSSliderTableCell();
};
