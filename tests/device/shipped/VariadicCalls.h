#pragma once

// What the bundle calls with a variable number of arguments. The device's compilers put all of these on the
// stack, in places of eight bytes each; here that is where they are once there are more than fit registers.
extern "C" {
void logFromBundle();
void printFromBundle();
}
