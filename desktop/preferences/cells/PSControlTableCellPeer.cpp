#include "cells/PSControlTableCellPeer.h"

void PSControlTableCellPeer::setControl(const Ref<UIControl>& control) {
    control_ = control;
    setAccessoryView(control);
}
