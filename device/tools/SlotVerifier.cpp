#include "SlotVerifier.h"

#include "Refusal.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

constexpr std::uint8_t externalSymbol = 0x01;

/// The symbols that begin what an address of an object lies in: those at the greatest address up to it.
std::vector<const MachOFile::Symbol*> symbolsAround(const MachOFile& object, std::size_t section,
                                                    std::uint64_t address) {
    std::vector<const MachOFile::Symbol*> around;
    for (const auto& symbol : object.symbols()) {
        const auto isCandidate = symbol.isDefined() && symbol.section == section + 1 &&
                                 !symbol.isAlternativeEntry() && symbol.value <= address;
        if (!isCandidate || (!around.empty() && symbol.value < around.front()->value))
            continue;
        if (!around.empty() && symbol.value > around.front()->value)
            around.clear();
        around.push_back(&symbol);
    }
    return around;
}

std::string schemaOf(const ChainedFixups::Fixup& fixup) {
    return fixup.schema ? fixup.schema->description() : "no signature";
}

} // namespace

SlotVerifier::SlotVerifier(const MachOFile& image, const LinkMap& map)
    : image_(image),
      map_(map),
      chains_(image) {
    for (const auto& fixup : chains_.fixups())
        fixups_.emplace(fixup.address, fixup);
}

void SlotVerifier::verify(const MachOFile& object, std::size_t number) {
    for (const auto& slot : SignedSlot::readAll(object))
        if (!slot.isInitialiser)
            verify(object, number, slot);
}

SlotVerifier::Count SlotVerifier::finish() const {
    for (const auto& [address, fixup] : fixups_)
        if (fixup.schema && !askedFor_.contains(address))
            image_.bytes().refuse("the pointer at " + hexadecimal(address) + " is signed with " +
                                  schemaOf(fixup) + ", which no object asks for");
    return count_;
}

void SlotVerifier::verify(const MachOFile& object, std::size_t number, const SignedSlot& slot) {
    const auto place = placeOf(object, number, slot);
    if (!place) {
        ++count_.leftOut;
        return;
    }
    const auto asked = "a signed pointer at " + hexadecimal(slot.address) + " of " +
                       object.sections()[slot.section].name + " with " + slot.schema.description();
    const auto found = fixups_.find(*place);
    if (found == fixups_.end())
        object.bytes().refuse("asks for " + asked + "; the image has no pointer at " + hexadecimal(*place));
    if (found->second.schema != slot.schema)
        object.bytes().refuse("asks for " + asked + "; the image has " + schemaOf(found->second) + " at " +
                              hexadecimal(*place));
    verifyTarget(object, number, slot, found->second);
    askedFor_.insert(*place);
    ++count_.verified;
}

void SlotVerifier::verifyTarget(const MachOFile& object, std::size_t number, const SignedSlot& slot,
                                const ChainedFixups::Fixup& fixup) const {
    const auto& symbol = object.symbols()[slot.symbol];
    const auto place = symbol.isDefined() ? mappedPlace(object, number, symbol.section - 1U, symbol.value)
                                          : map_.addressInAny(symbol.name);
    auto asTarget = symbol.name + "+" + std::to_string(slot.addend);
    if (place)
        asTarget = hexadecimal(*place + static_cast<std::uint64_t>(std::int64_t{slot.addend}));
    if (nameOf(fixup) != asTarget)
        object.bytes().refuse("asks for a signed pointer to " + symbol.name + ", " + asTarget +
                              "; the image has one to " + nameOf(fixup) + " at " +
                              hexadecimal(fixup.address));
}

SlotVerifier::Place SlotVerifier::placeOf(const MachOFile& object, std::size_t number,
                                          const SignedSlot& slot) const {
    if (const auto place = mappedPlace(object, number, slot.section, slot.address))
        return place;
    const auto isStripped = [&](const auto* symbol) { return map_.isStripped(number, symbol->name); };
    if (std::ranges::any_of(symbolsAround(object, slot.section, slot.address), isStripped))
        return std::nullopt;
    const auto marker = slot.schema.markerName(slot.number);
    const auto place = map_.address(number, marker);
    if (!place && !map_.isStripped(number, marker))
        object.bytes().refuse("has " + hexadecimal(slot.address) + " in " +
                              object.sections()[slot.section].name + ", of which the map says nothing");
    return place;
}

// A symbol that several objects define is in the image once; the map has it for one of them.
SlotVerifier::Place SlotVerifier::mappedPlace(const MachOFile& object, std::size_t number,
                                              std::size_t section, std::uint64_t address) const {
    const auto around = symbolsAround(object, section, address);
    for (const auto* symbol : around)
        if (const auto place = map_.address(number, symbol->name))
            return *place + (address - symbol->value);
    for (const auto* symbol : around)
        if (const auto place = map_.addressInAny(symbol->name); place && (symbol->type & externalSymbol) != 0)
            return *place + (address - symbol->value);
    return std::nullopt;
}

std::string SlotVerifier::nameOf(const ChainedFixups::Fixup& fixup) const {
    if (!fixup.import)
        return hexadecimal(image_.segment("__TEXT").address + fixup.target);
    const auto& import = chains_.imports()[*fixup.import];
    return import.name + "+" + std::to_string(fixup.addend + import.addend);
}
