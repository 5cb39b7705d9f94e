#pragma once

#include "CommandTable.h"

/// `type` and `key`: what is typed, into what has the keyboard.
void addTextCommands(CommandTable& table);
