#pragma once

#include "CommandTable.h"

/// The commands that choose files of the host in what is presented to ask for them.
void addPickerCommands(CommandTable& table);
