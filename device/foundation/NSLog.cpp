#include "Foundation/NSLog.h"

#include "Message.h"

extern "C" void NSLog(id format, ...);

void logLine(std::string_view line) {
    const AutoreleasePool pool;
    NSLog(textObject("%@"), textObject(line));
}
