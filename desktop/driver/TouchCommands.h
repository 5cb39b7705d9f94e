#pragma once

#include "CommandTable.h"

class TouchDispatcher;

/// `tap`, `touch` and `swipe-down`: a finger on the screen.
/// \param touches outlives the table
void addTouchCommands(CommandTable& table, TouchDispatcher& touches);
