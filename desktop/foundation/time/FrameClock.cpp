#include "time/FrameClock.h"

void FrameClock::beginFrame() {
    uptime_ = host_.uptime();
    date_ = host_.date();
}
