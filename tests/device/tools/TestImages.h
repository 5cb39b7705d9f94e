#pragma once

#include "FileBytes.h"
#include "MachOFile.h"
#include "Refusal.h"

#include <functional>
#include <string>

/// The objects and linked images that the build makes for these tests.
class TestImages {
public:
    /// "SignedPointers", "OtherObject" or "Exceptions", as the assembler made it.
    [[nodiscard]] static FileBytes objectBytes(const std::string& name);
    [[nodiscard]] static MachOFile object(const std::string& name);

    /// What the linker made of the prepared objects: "SignedPointers" of two of them, or "Exceptions".
    [[nodiscard]] static MachOFile linked(const std::string& name);
    [[nodiscard]] static MachOFile parsedImage(FileBytes bytes, MachOFile::Subtype subtype);
    /// Where the linker's account of "SignedPointers" is.
    [[nodiscard]] static std::string mapPath();

    /// The image "SignedPointers" as it is to be loaded.
    [[nodiscard]] static MachOFile finished();

    /// Where a load command's field is in a file.
    [[nodiscard]] static std::uint64_t field(const MachOFile& file, std::uint32_t command,
                                             std::uint64_t field);
};

/// What a refusal says; empty when `call` is not refused.
[[nodiscard]] std::string refusalOf(const std::function<void()>& call);
