#pragma once

// The function to call a block with. Where the blocks' code signs pointers, that is not what stands in the
// block.
#ifdef __cplusplus
extern "C"
#endif
    void* functionOfBlock(void* block);
