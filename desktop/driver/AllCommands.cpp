#include "AllCommands.h"

#include "ApplicationCommands.h"
#include "EventCommands.h"
#include "InspectionCommands.h"
#include "PickerCommands.h"
#include "TextCommands.h"
#include "TimeCommands.h"
#include "TouchCommands.h"

void addAllCommands(CommandTable& table, const DrivenParts& parts) {
    addApplicationCommands(table, parts.application);
    addInspectionCommands(table, parts.application, parts.compositor);
    addTouchCommands(table, parts.touches);
    addTimeCommands(table, parts.clock);
    addEventCommands(table, parts.log);
    addTextCommands(table);
    addPickerCommands(table);
}
