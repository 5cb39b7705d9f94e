#pragma once

#include "CommandTable.h"

class DrivenApplication;

/// `open`, `back`, `relaunch` and `set`: they go about in the application and write values.
/// \param application outlives the table
void addApplicationCommands(CommandTable& table, DrivenApplication& application);
