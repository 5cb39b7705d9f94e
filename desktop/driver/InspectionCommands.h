#pragma once

#include "CommandTable.h"

class Compositor;
class DrivenApplication;

/// `screen`, `views` and `snapshot`: they look and change nothing.
/// \param application, compositor outlive the table
void addInspectionCommands(CommandTable& table, DrivenApplication& application, Compositor& compositor);
