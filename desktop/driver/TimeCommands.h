#pragma once

#include "CommandTable.h"

class VirtualClock;

/// `advance` and `settle`: they move the device's time.
/// \param clock the current device's; outlives the table
void addTimeCommands(CommandTable& table, VirtualClock& clock);
