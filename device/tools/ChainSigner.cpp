#include "ChainSigner.h"

#include "Refusal.h"

#include <algorithm>
#include <limits>
#include <ranges>
#include <set>
#include <utility>

namespace {

/// The parts of the data follow one another in this order; the header says where each begins.
constexpr std::uint64_t startsField = 4;
constexpr std::uint64_t importsField = 8;
constexpr std::uint64_t namesField = 12;
constexpr std::uint64_t importCountField = 16;
constexpr std::uint64_t importFormatField = 20;
constexpr std::size_t headerSize = 32; ///< padded to a multiple of eight

constexpr std::uint32_t importsWithAddend = 2;

} // namespace

ChainSigner::ChainSigner(MachOFile& image, const Schemas& schemas)
    : image_(image),
      schemas_(schemas),
      chains_(image) {
    std::set<std::uint64_t> filledIn;
    for (const auto& fixup : chains_.fixups()) {
        filledIn.insert(fixup.address);
        if (fixup.schema)
            image.bytes().refuse("has signed pointers already");
    }
    for (const auto address : schemas | std::views::keys)
        if (!filledIn.contains(address))
            image.bytes().refuse("has no pointer to sign at " + hexadecimal(address));
}

FileBytes ChainSigner::sign() {
    for (const auto& fixup : chains_.fixups())
        rewrite(fixup);
    return payload();
}

void ChainSigner::rewrite(ChainedFixups::Fixup fixup) {
    if (const auto found = schemas_.find(fixup.address); found != schemas_.end())
        fixup.schema = found->second;
    if (fixup.import) {
        fixup.import = importWithAddend(*fixup.import, fixup.schema ? fixup.addend : 0);
        fixup.addend = fixup.schema ? 0 : fixup.addend;
    }
    image_.bytes().write(image_.fileOffset(fixup.address), ChainedFixups::encodedSigned(fixup));
}

std::uint32_t ChainSigner::importWithAddend(std::uint32_t import, std::int64_t addend) {
    auto wanted = chains_.imports()[import];
    const auto sum = wanted.addend + addend;
    if (sum < std::numeric_limits<std::int32_t>::min() || sum > std::numeric_limits<std::int32_t>::max())
        image_.bytes().refuse("binds to " + wanted.name + " with an addend that an import has no room for");
    wanted.addend = static_cast<std::int32_t>(sum);
    const auto found = std::ranges::find(imports_, wanted);
    const auto index = static_cast<std::uint32_t>(found - imports_.begin());
    if (found == imports_.end())
        imports_.push_back(std::move(wanted));
    return index;
}

FileBytes ChainSigner::payload() const {
    FileBytes payload("chained fixups", {});
    payload.append(std::vector<std::uint8_t>(headerSize));
    payload.write(startsField, static_cast<std::uint32_t>(payload.size()));
    addStarts(payload);
    addImports(payload);
    payload.padTo(8);
    return payload;
}

void ChainSigner::addStarts(FileBytes& payload) const {
    constexpr std::uint64_t formatField = 6;
    const auto begin = payload.size();
    payload.append(image_.bytes().range(chains_.startsOffset(), chains_.startsSize()));
    for (const auto start : chains_.segmentStarts())
        payload.write(begin + (start - chains_.startsOffset()) + formatField,
                      std::to_underlying(ChainedFixups::Format::Signed));
}

void ChainSigner::addImports(FileBytes& payload) const {
    FileBytes names("names of imports", {0});
    payload.write(importsField, static_cast<std::uint32_t>(payload.size()));
    payload.write(importCountField, static_cast<std::uint32_t>(imports_.size()));
    payload.write(importFormatField, importsWithAddend);
    for (const auto& import : imports_) {
        const auto name = static_cast<std::uint32_t>(names.appendText(import.name));
        payload.append(import.library | static_cast<std::uint32_t>(import.isWeak) << 8U | name << 9U);
        payload.append(static_cast<std::uint32_t>(import.addend));
    }
    payload.write(namesField, static_cast<std::uint32_t>(payload.size()));
    payload.append(names.all());
}
