#pragma once

#include "FileBytes.h"
#include "MachOFile.h"

#include <string>

/// The signature without a signer that an image needs to be loaded: hashes of its pages, as the linker writes
/// them too. It comes last; whatever changes the image afterwards makes it wrong.
class AdHocSignature {
public:
    /// \param identifier what the signed code is called
    explicit AdHocSignature(std::string identifier);

    /// Signs an image whose last segment ends where the signature is to begin, and lets that segment hold it.
    void addTo(MachOFile& image) const;

private:
    [[nodiscard]] std::size_t directorySize(std::size_t pageCount) const;
    void setSizes(MachOFile& image, std::size_t begin, std::size_t size) const;
    void addDirectory(FileBytes& bytes, const MachOFile::Segment& code) const;

    std::string identifier_;
};
