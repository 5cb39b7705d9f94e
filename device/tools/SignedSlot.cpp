#include "SignedSlot.h"

#include "MachOFormat.h"
#include "Refusal.h"

namespace {

/// Relocations are two words: the offset in the section, then symbol and kind.
struct Relocation {
    std::uint32_t offset;
    std::uint32_t symbol;
    bool isRelative;
    unsigned sizeExponent;
    bool namesSymbol;
    unsigned type;

    static Relocation read(const FileBytes& bytes, std::uint64_t place) {
        const auto word = bytes.read<std::uint32_t>(place + 4);
        return {.offset = bytes.read<std::uint32_t>(place),
                .symbol = word & 0x00FFFFFFU,
                .isRelative = (word >> 24U & 1U) != 0,
                .sizeExponent = word >> 25U & 3U,
                .namesSymbol = (word >> 27U & 1U) != 0,
                .type = word >> 28U};
    }
};

constexpr unsigned eightBytes = 3;

SignedSlot readSlot(const MachOFile& object, std::size_t number, std::size_t sectionIndex,
                    std::uint64_t place, const Relocation& relocation) {
    const auto& bytes = object.bytes();
    const auto& section = object.sections()[sectionIndex];
    const auto where = "the signed pointer at " + hexadecimal(relocation.offset) + " of " + section.name;
    if (relocation.isRelative || relocation.sizeExponent != eightBytes)
        bytes.refuse(where + " is not one of eight bytes with an absolute address");
    if (!relocation.namesSymbol || relocation.symbol >= object.symbols().size())
        bytes.refuse(where + " points to no symbol");
    const auto content = bytes.read<std::uint64_t>(section.fileOffset + std::uint64_t{relocation.offset});
    if (content >> 62U != 2)
        bytes.refuse(where + " holds " + hexadecimal(content) + ", which does not ask for a signature");
    return {.number = number,
            .section = sectionIndex,
            .address = section.address + relocation.offset,
            .fileOffset = section.fileOffset + std::uint64_t{relocation.offset},
            .relocation = place,
            .schema = PointerSchema::decoded(content),
            .symbol = relocation.symbol,
            .addend = static_cast<std::int32_t>(static_cast<std::uint32_t>(content)),
            .isInitialiser =
                (section.flags & MachOFormat::sectionTypeMask) == MachOFormat::initialiserPointers};
}

void checkSlot(const MachOFile& object, const SignedSlot& slot) {
    const auto& section = object.sections()[slot.section];
    if (slot.isInitialiser && slot.schema != PointerSchema())
        object.bytes().refuse("an initialiser in " + section.name + " is to be signed with " +
                              slot.schema.description() + ", which an offset cannot be");
    if (slot.address % 8 != 0)
        object.bytes().refuse("the signed pointer at " + hexadecimal(slot.address) + " of " + section.name +
                              " is not aligned to eight bytes");
}

} // namespace

std::vector<SignedSlot> SignedSlot::readAll(const MachOFile& object) {
    std::vector<SignedSlot> slots;
    for (std::size_t index = 0; index < object.sections().size(); ++index) {
        const auto& section = object.sections()[index];
        for (std::uint64_t i = 0; i < section.relocationCount; ++i) {
            const auto place = section.relocationsOffset + i * MachOFormat::relocationSize;
            const auto relocation = Relocation::read(object.bytes(), place);
            if (relocation.type != MachOFormat::signedPointerRelocation)
                continue;
            slots.push_back(readSlot(object, slots.size(), index, place, relocation));
            checkSlot(object, slots.back());
        }
    }
    return slots;
}
