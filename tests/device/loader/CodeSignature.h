#pragma once

#include <stdint.h>

/// The signature in a file of code, as far as the device's kernel needs it of code without a signer: a hash
/// of each page.
class CodeSignature {
public:
    /// \param file the part for one architecture
    /// \param signature where the signature begins in it
    CodeSignature(const uint8_t* file, const uint8_t* signature);

    /// Whether every page before the signature has the hash that stands there, and there is one for each.
    [[nodiscard]] bool holds(uint64_t signedSize) const;

private:
    const uint8_t* const file_;
    const uint8_t* directory_;
};
