#include "ColorGrid.h"

#include "ColorGridPeer.h"
#include "ObjectiveC/Class.h"

#include <memory>

namespace {

const Class gridClass = Class::define<ColorGrid, UIControl>("ColorGrid");

} // namespace

ColorGrid::ColorGrid() : UIControl(std::make_unique<ColorGridPeer>()) {}
