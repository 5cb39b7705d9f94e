#include "PictureMemory.h"

#include <malloc.h>

/// Left alone, the allocator takes memory for larger and larger pictures from where the small things are,
/// too, which keep it from being given back.
void giveBackPictureMemory() {
    constexpr auto largestAmongOthers = 1 << 20; // bytes
    mallopt(M_MMAP_THRESHOLD, largestAmongOthers);
}
