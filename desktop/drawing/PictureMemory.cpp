#include "PictureMemory.h"

#include <malloc.h>

/// Left alone, the allocator takes memory for larger and larger pictures from where the small things are,
/// too, which keep it from being given back.
void giveBackPictureMemory() {
    constexpr auto largestAmongOthers = 1 << 20; // bytes
    constexpr auto keptAtEnd = 4 << 20;          // bytes, as a frame needs for a moment
    mallopt(M_MMAP_THRESHOLD, largestAmongOthers);
    mallopt(M_TRIM_THRESHOLD, keptAtEnd);
}
