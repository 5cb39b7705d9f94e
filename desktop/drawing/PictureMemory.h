#pragma once

/// Has the memory of pictures given back to the system once they end, whatever was allocated meanwhile.
/// Called once, as the process begins.
void giveBackPictureMemory();
