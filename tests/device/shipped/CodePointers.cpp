#include "CodePointers.h"

#include "Failure.h"

namespace {

bool bundleSigns = false;

} // namespace

void CodePointers::areSigned(bool signedByBundle) {
    bundleSigns = signedByBundle;
}

std::uint64_t CodePointers::authenticated(std::uint64_t pointer, SigningKey key, std::uint64_t modifier,
                                          const char* what) {
    if (!bundleSigns || pointer == 0)
        return pointer;
    if (!PointerSignature::isRight(pointer, key, modifier))
        fail("wrongly signed: ", what);
    return PointerSignature::strip(pointer);
}

std::uint64_t CodePointers::authenticatedAt(const std::uint64_t& place, SigningKey key,
                                            std::uint16_t diversity, const char* what) {
    return authenticated(
        place, key, PointerSignature::modifier(reinterpret_cast<std::uint64_t>(&place), diversity), what);
}

std::uint64_t CodePointers::signedFor(std::uint64_t pointer, SigningKey key, std::uint64_t modifier) {
    return bundleSigns ? PointerSignature::add(pointer, key, modifier) : pointer;
}

std::uint64_t CodePointers::stripped(std::uint64_t pointer) {
    return bundleSigns ? PointerSignature::strip(pointer) : pointer;
}
