#pragma once

#include "CommandTable.h"

/// The commands for what this device has none of: pickers. They say so.
void addUnavailableCommands(CommandTable& table);
