#include "PointerSignature.h"

uint64_t PointerSignature::add(uint64_t pointer, SigningKey key, uint64_t modifier) {
    if (pointer == 0)
        return 0;
    switch (key) {
    case SigningKey::IA: // NOLINT(bugprone-branch-clone): the instructions differ
        __asm("pacia %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    case SigningKey::IB:
        __asm("pacib %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    case SigningKey::DA:
        __asm("pacda %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    case SigningKey::DB:
        __asm("pacdb %0, %1" : "+r"(pointer) : "r"(modifier));
        break;
    }
    return pointer;
}

bool PointerSignature::isRight(uint64_t pointer, SigningKey key, uint64_t modifier) {
    return add(strip(pointer), key, modifier) == pointer;
}

uint64_t PointerSignature::strip(uint64_t pointer) {
    __asm("xpaci %0" : "+r"(pointer));
    return pointer;
}

uint64_t PointerSignature::modifier(uint64_t place, uint16_t diversity) {
    constexpr unsigned addressBits = 48;
    return (place & ((1ULL << addressBits) - 1)) | static_cast<uint64_t>(diversity) << addressBits;
}
