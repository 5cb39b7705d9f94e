#include "BlockCalls.h"

namespace {

struct Block {
    void* isa;
    int flags;
    int reserved;
    void* function;
};

} // namespace

void* functionOfBlock(void* block) {
    return static_cast<const Block*>(block)->function;
}
