#pragma once

#include "CommandTable.h"

class Compositor;
class DrivenApplication;
class LogRecorder;
class TouchDispatcher;
class VirtualClock;

/// What the commands act on, beside the current device and its screen.
struct DrivenParts {
    DrivenApplication& application;
    TouchDispatcher& touches;
    Compositor& compositor;
    VirtualClock& clock; ///< the current device's
    LogRecorder& log;
};

/// Every command that there is.
/// \param parts outlive the table
void addAllCommands(CommandTable& table, const DrivenParts& parts);
