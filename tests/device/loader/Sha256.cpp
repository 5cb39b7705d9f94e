#include "Sha256.h"

namespace {

constexpr size_t blockSize = 64;
constexpr unsigned rounds = 64;

constexpr uint32_t initialState[] = {0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                                     0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};

constexpr uint32_t constants[rounds] = {
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};

uint32_t turned(uint32_t word, unsigned count) {
    return word >> count | word << (32U - count);
}

uint32_t wordAt(const uint8_t* place) {
    uint32_t word = 0;
    __builtin_memcpy(&word, place, sizeof word);
    return __builtin_bswap32(word);
}

} // namespace

Sha256::Sha256(const uint8_t* bytes, size_t count) {
    __builtin_memcpy(state_, initialState, sizeof state_);
    size_t done = 0;
    for (; count - done >= blockSize; done += blockSize)
        add(bytes + done);
    constexpr size_t sizeOfCount = 8;
    constexpr uint8_t mark = 0x80;
    uint8_t last[2 * blockSize] = {};
    const auto rest = count - done;
    __builtin_memcpy(last, bytes + done, rest);
    last[rest] = mark;
    const auto lastSize = rest + 1 + sizeOfCount > blockSize ? 2 * blockSize : blockSize;
    const auto bitCount = __builtin_bswap64(8 * count);
    __builtin_memcpy(last + lastSize - sizeOfCount, &bitCount, sizeOfCount);
    for (size_t place = 0; place < lastSize; place += blockSize)
        add(last + place);
}

bool Sha256::equals(const uint8_t* hash) const {
    for (unsigned i = 0; i < 8; ++i) {
        if (state_[i] != wordAt(hash + 4ULL * i))
            return false;
    }
    return true;
}

void Sha256::add(const uint8_t* block) {
    uint32_t words[rounds];
    for (unsigned i = 0; i < 16; ++i)
        words[i] = wordAt(block + 4ULL * i);
    for (unsigned i = 16; i < rounds; ++i) {
        const auto near = words[i - 2];
        const auto far = words[i - 15];
        words[i] = words[i - 16] + (turned(far, 7) ^ turned(far, 18) ^ far >> 3U) + words[i - 7] +
                   (turned(near, 17) ^ turned(near, 19) ^ near >> 10U);
    }
    uint32_t v[8];
    __builtin_memcpy(v, state_, sizeof v);
    for (unsigned i = 0; i < rounds; ++i) {
        const auto chosen = (v[4] & v[5]) ^ (~v[4] & v[6]);
        const auto majority = (v[0] & v[1]) ^ (v[0] & v[2]) ^ (v[1] & v[2]);
        const auto first =
            v[7] + (turned(v[4], 6) ^ turned(v[4], 11) ^ turned(v[4], 25)) + chosen + constants[i] + words[i];
        const auto second = (turned(v[0], 2) ^ turned(v[0], 13) ^ turned(v[0], 22)) + majority;
        __builtin_memmove(v + 1, v, 7 * sizeof *v);
        v[4] += first;
        v[0] = first + second;
    }
    for (unsigned i = 0; i < 8; ++i)
        state_[i] += v[i];
}
