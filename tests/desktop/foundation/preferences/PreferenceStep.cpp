#include "preferences/PreferenceStep.h"

#include <random>

PreferenceStep::PreferenceStep(std::uint64_t stepNumber) : number(stepNumber) {
    std::mt19937_64 random(number);
    removesDomainFirst = random() % 20 == 0;
    blob.resize(random() % 3000);
    for (auto& byte : blob)
        byte = static_cast<char>(random() & 0xFFU);
    checksum = checksumOf(number, blob);
    extraKey = "extra-" + std::to_string(random() % 10);
    if (random() % 3 != 0)
        extraValue = "set by " + std::to_string(number);
}

std::string PreferenceStep::checksumOf(std::uint64_t number, std::string_view blob) {
    std::uint64_t sum = 0xCBF2'9CE4'8422'2325;
    for (const char byte : std::to_string(number) + std::string(blob))
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100'0000'01B3;
    return std::to_string(sum);
}
