#pragma once

#include "ChainedFixups.h"
#include "FileBytes.h"
#include "MachOFile.h"
#include "PointerSchema.h"

#include <cstdint>
#include <map>
#include <vector>

/// Rewrites an image's pointers into the format of arm64e, those at given addresses as signed ones. What is
/// added to the target of a signed pointer moves into the list of imports, since such a pointer has no room
/// for it.
class ChainSigner {
public:
    using Schemas = std::map<std::uint64_t, PointerSchema>; ///< by the pointer's address

    /// Refuses an address at which there is no pointer for the loader to fill in.
    ChainSigner(MachOFile& image, const Schemas& schemas);

    /// Changes the pointers in the image. \returns the data of its load command for chained fixups
    [[nodiscard]] FileBytes sign();

private:
    [[nodiscard]] std::uint32_t importWithAddend(std::uint32_t import, std::int64_t addend);
    void rewrite(ChainedFixups::Fixup fixup);
    [[nodiscard]] FileBytes payload() const;
    void addStarts(FileBytes& payload) const;
    void addImports(FileBytes& payload) const;

    MachOFile& image_;
    const Schemas& schemas_;
    ChainedFixups chains_;
    std::vector<ChainedFixups::Import> imports_; ///< of the rewritten image
};
