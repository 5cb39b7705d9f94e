#pragma once

#include "CommandTable.h"

class TouchDispatcher;

/// `tap` and `touch`: a finger on the screen.
/// \param touches outlives the table
void addTouchCommands(CommandTable& table, TouchDispatcher& touches);
