#pragma once

#include "MachOFile.h"
#include "PointerSchema.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The pointers of an image that the loader fills in, read from the chains that lead from one to the next,
/// and the symbols of other images that they are bound to. Refuses chains of other formats than these.
class ChainedFixups {
public:
    enum class Format : std::uint16_t {
        Plain = 2,        ///< 64 bit; targets are addresses
        PlainOffsets = 6, ///< the same with targets counted from the image's start
        Signed = 12,      ///< arm64e, for programs, with 24 bits for the import
    };

    struct Import {
        std::uint8_t library; ///< of the image's list, counted from 1; the loader's own meanings from 0xFD on
        bool isWeak;
        std::string name;
        std::int32_t addend;

        bool operator==(const Import&) const = default;
    };

    struct Fixup {
        std::uint64_t address = 0;        ///< of the pointer
        std::uint64_t distanceToNext = 0; ///< in bytes; 0 for the last of its chain
        /// Index of what it is bound to; none for a place in the image.
        std::optional<std::uint32_t> import = std::nullopt;
        std::int64_t addend = 0;  ///< to what it is bound to
        std::uint64_t target = 0; ///< the place in the image, counted from the image's start
        std::uint8_t topByte = 0; ///< of such a pointer
        std::optional<PointerSchema> schema = std::nullopt; ///< of a signed pointer
    };

    explicit ChainedFixups(const MachOFile& image);

    [[nodiscard]] const std::vector<Import>& imports() const { return imports_; }

    [[nodiscard]] const std::vector<Fixup>& fixups() const { return fixups_; }

    /// Where the list of the chains' starts is in the file, and where it ends.
    [[nodiscard]] std::uint64_t startsOffset() const { return startsOffset_; }

    [[nodiscard]] std::uint64_t startsSize() const { return startsSize_; }

    /// Where each segment's part of that list is in the file.
    [[nodiscard]] const std::vector<std::uint64_t>& segmentStarts() const { return segmentStarts_; }

    /// What the file holds at a pointer of the format `Signed`. Refuses what that format has no room for.
    [[nodiscard]] static std::uint64_t encodedSigned(const Fixup& fixup);

private:
    void readImports(std::uint64_t header);
    void readChains(std::uint64_t segmentStart);
    void readChain(Format format, std::uint64_t address);
    [[nodiscard]] Fixup decoded(Format format, std::uint64_t address, std::uint64_t content) const;

    const MachOFile& image_;
    std::uint64_t imageStart_;
    std::uint64_t startsOffset_ = 0;
    std::uint64_t startsSize_ = 0;
    std::vector<std::uint64_t> segmentStarts_;
    std::vector<Import> imports_;
    std::vector<Fixup> fixups_;
};
