// The operators of C++, which the bundle's code calls too. They count what they are called for, and each
// block knows its size, which whoever frees it has to know as well.

#include "Memory.h"

#include "Failure.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> inUse = 0;

/// What stands before each block.
struct alignas(std::max_align_t) BlockHead {
    std::size_t size;
};

BlockHead& headOf(void* block) {
    return static_cast<BlockHead*>(block)[-1];
}

} // namespace

std::size_t blocksInUse() {
    return inUse;
}

// NOLINTBEGIN(*-no-malloc): this is what stands behind the operators
void* operator new(std::size_t size) {
    auto* const head = static_cast<BlockHead*>(std::malloc(sizeof(BlockHead) + size));
    if (head == nullptr)
        fail("no memory is left");
    head->size = size;
    ++inUse;
    return head + 1;
}

void operator delete(void* block) noexcept {
    if (block == nullptr)
        return;
    --inUse;
    std::free(&headOf(block));
}

void operator delete(void* block, std::size_t size) noexcept {
    if (block != nullptr && headOf(block).size != size)
        fail("a block is freed with another size than it was made with");
    operator delete(block);
}

// NOLINTEND(*-no-malloc)
