#pragma once

#include "ChainSigner.h"
#include "MachOFile.h"

#include <string>

/// Makes an arm64e bundle of the arm64 bundle that the linker made of prepared objects: signs the pointers
/// that markers stand at, takes markers and other local symbols away, says in the header what it is, and
/// signs it anew.
class ImageFinisher {
public:
    /// \param identifier what the signature calls the code
    ImageFinisher(MachOFile linked, std::string identifier);

    [[nodiscard]] FileBytes finished() &&;

private:
    void refuseExceptions() const;
    [[nodiscard]] ChainSigner::Schemas markedSchemas() const;

    MachOFile image_;
    std::string identifier_;
};
