#include "CodeSignature.h"

#include "Sha256.h"

namespace {

uint32_t numberAt(const uint8_t* place) {
    uint32_t number = 0;
    __builtin_memcpy(&number, place, sizeof number);
    return __builtin_bswap32(number);
}

/// The list of hashes; null when there is none.
const uint8_t* directoryIn(const uint8_t* signature) {
    constexpr uint32_t signatureMagic = 0xFADE0CC0;
    constexpr uint32_t directoryMagic = 0xFADE0C02;
    if (numberAt(signature) != signatureMagic)
        return nullptr;
    for (uint32_t i = 0; i < numberAt(signature + 8); ++i) {
        const auto* const part = signature + numberAt(signature + 16 + 8ULL * i);
        if (numberAt(part) == directoryMagic)
            return part;
    }
    return nullptr;
}

} // namespace

CodeSignature::CodeSignature(const uint8_t* file, const uint8_t* signature)
    : file_(file),
      directory_(directoryIn(signature)) {}

bool CodeSignature::holds(uint64_t signedSize) const {
    constexpr uint8_t sha256 = 2;
    if (directory_ == nullptr || directory_[36] != Sha256::size || directory_[37] != sha256 ||
        numberAt(directory_ + 32) != signedSize)
        return false;
    const auto* const hashes = directory_ + numberAt(directory_ + 16);
    const auto pageSize = 1ULL << directory_[39];
    if (numberAt(directory_ + 28) != (signedSize + pageSize - 1) / pageSize)
        return false;
    for (uint64_t start = 0, i = 0; start < signedSize; start += pageSize, ++i) {
        const auto left = signedSize - start;
        if (!Sha256(file_ + start, left < pageSize ? left : pageSize).equals(hashes + Sha256::size * i))
            return false;
    }
    return true;
}
