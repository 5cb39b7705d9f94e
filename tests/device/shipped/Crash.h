#pragma once

/// Tells where in the bundle the processor refuses to go on, and ends the program.
void tellCrashes();
