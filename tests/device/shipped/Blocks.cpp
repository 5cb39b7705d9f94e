// The runtime of blocks. In arm64e code a block's class, its function and the functions that copy and end
// what it holds are signed for where they stand.

#include "BlockCalls.h"
#include "CodePointers.h"
#include "ImportLists.h"
#include "Runtime.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <new>

namespace {

struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    std::uint64_t copy; ///< only of a block that says so
    std::uint64_t end;
};

struct Block {
    std::uint64_t isa;
    std::int32_t flags;
    std::int32_t reserved;
    std::uint64_t function;
    const Descriptor* descriptor;
};

using Classes = std::array<void*, 32>;

Classes stackBlockClass{};
Classes heapBlockClass{};

constexpr std::uint16_t diversityOfClass = 0x6AE1;
constexpr std::int32_t isOnTheHeap = 1 << 24;
constexpr std::int32_t holdsObjects = 1 << 25;
constexpr std::int32_t isGlobal = 1 << 28;
constexpr std::int32_t owners = 0xFFFE;
constexpr std::int32_t oneOwner = 2;

template <class Function>
Function* functionAt(const std::uint64_t& place, const char* what) {
    return reinterpret_cast<Function*>(CodePointers::authenticatedAt(place, SigningKey::IA, 0, what));
}

std::uint64_t signedAt(const std::uint64_t& place, std::uint64_t pointer, SigningKey key,
                       std::uint16_t diversity) {
    return CodePointers::signedFor(
        pointer, key, PointerSignature::modifier(reinterpret_cast<std::uint64_t>(&place), diversity));
}

Block* copyToHeap(const Block& block) {
    static_cast<void>(
        CodePointers::authenticatedAt(block.isa, SigningKey::DA, diversityOfClass, "the class of a block"));
    auto* const copy = static_cast<Block*>(::operator new(block.descriptor->size));
    std::memcpy(copy, &block, block.descriptor->size);
    copy->isa = signedAt(copy->isa, reinterpret_cast<std::uint64_t>(&heapBlockClass), SigningKey::DA,
                         diversityOfClass);
    const auto function =
        CodePointers::authenticatedAt(block.function, SigningKey::IA, 0, "the function of a block");
    copy->function = signedAt(copy->function, function, SigningKey::IA, 0);
    copy->flags = (block.flags & ~owners) | isOnTheHeap | oneOwner;
    if ((block.flags & holdsObjects) != 0)
        functionAt<void(Block*, const Block*)>(block.descriptor->copy, "what copies a block")(copy, &block);
    return copy;
}

void endBlock(Block* block) {
    if ((block->flags & holdsObjects) != 0)
        functionAt<void(Block*)>(block->descriptor->end, "what ends a block")(block);
    ::operator delete(block);
}

} // namespace

void* _Block_copy(const void* block) {
    auto* const given =
        static_cast<Block*>(const_cast<void*>(block)); // NOLINT(*-const-cast): it is counted in
    if (given == nullptr || (given->flags & isGlobal) != 0)
        return given;
    if ((given->flags & isOnTheHeap) == 0)
        return copyToHeap(*given);
    __atomic_add_fetch(&given->flags, oneOwner, __ATOMIC_RELAXED);
    return given;
}

void _Block_release(const void* block) {
    auto* const given =
        static_cast<Block*>(const_cast<void*>(block)); // NOLINT(*-const-cast): it is counted in
    if (given == nullptr || (given->flags & isOnTheHeap) == 0)
        return;
    if ((__atomic_sub_fetch(&given->flags, oneOwner, __ATOMIC_ACQ_REL) & owners) == 0)
        endBlock(given);
}

void* functionOfBlock(void* block) {
    return reinterpret_cast<void*>(
        functionAt<void()>(static_cast<const Block*>(block)->function, "the function of a block"));
}

Imports blockImports() {
    static const std::array imports{Import{"__Block_copy", code(_Block_copy)},
                                    Import{"__Block_release", code(_Block_release)},
                                    Import{"__NSConcreteStackBlock", &stackBlockClass}};
    return imports;
}
