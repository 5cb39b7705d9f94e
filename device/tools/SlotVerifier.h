#pragma once

#include "ChainedFixups.h"
#include "LinkMap.h"
#include "MachOFile.h"
#include "SignedSlot.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

/// Compares every signed pointer of a finished image with what the objects ask for: each at its own place,
/// with its schema and its target. Where the linker put things is read from its map. That leaves out symbols
/// whose names are private to an object; what those begin is found by the markers that went through the link.
class SlotVerifier {
public:
    struct Count {
        std::size_t verified = 0; ///< pointers of objects that are in the image as asked for
        std::size_t leftOut = 0;  ///< pointers of what nothing refers to
    };

    /// All of these must outlive the verifier.
    SlotVerifier(const MachOFile& image, const LinkMap& map);

    /// Verifies what one object asks for. `number` is its place among the linked objects, from 0.
    void verify(const MachOFile& object, std::size_t number);

    /// To be called after the last object: refuses signed pointers that none of them has asked for.
    [[nodiscard]] Count finish() const;

private:
    using Place = std::optional<std::uint64_t>;

    void verify(const MachOFile& object, std::size_t number, const SignedSlot& slot);
    void verifyTarget(const MachOFile& object, std::size_t number, const SignedSlot& slot,
                      const ChainedFixups::Fixup& fixup) const;
    /// Where a pointer is in the image; nothing when it was left out.
    [[nodiscard]] Place placeOf(const MachOFile& object, std::size_t number, const SignedSlot& slot) const;
    /// Where a byte of an object is in the image; nothing when the map does not tell.
    [[nodiscard]] Place mappedPlace(const MachOFile& object, std::size_t number, std::size_t section,
                                    std::uint64_t address) const;
    [[nodiscard]] std::string nameOf(const ChainedFixups::Fixup& fixup) const;

    const MachOFile& image_;
    const LinkMap& map_;
    ChainedFixups chains_;
    std::map<std::uint64_t, ChainedFixups::Fixup> fixups_; ///< by address
    std::set<std::uint64_t> askedFor_;
    Count count_;
};
