#pragma once

#include "CommandTable.h"

class LogRecorder;

/// `log`, `notifications`, `sounds` and `urls`: what has happened since they were last given; and
/// `url-handler`, which says how opening URLs goes.
/// \param log outlives the table
void addEventCommands(CommandTable& table, LogRecorder& log);
