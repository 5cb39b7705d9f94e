#include "ObjectPreparer.h"

#include "MachOFormat.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <utility>

ObjectPreparer::ObjectPreparer(MachOFile object)
    : object_(std::move(object)),
      slots_(SignedSlot::readAll(object_)) {}

FileBytes ObjectPreparer::prepared() && {
    for (const auto& slot : slots_)
        makePlain(slot);
    std::erase_if(slots_, &SignedSlot::isInitialiser);
    addMarkers();
    return std::move(object_.bytes());
}

std::string ObjectPreparer::fileName(std::size_t index, const std::string& objectPath) {
    return std::to_string(index) + "-" +
           std::filesystem::path(objectPath).filename().replace_extension(".o").string();
}

// A plain relocation is of type 0 and wants the addend alone in the slot.
void ObjectPreparer::makePlain(const SignedSlot& slot) {
    auto& bytes = object_.bytes();
    const auto word = bytes.read<std::uint32_t>(slot.relocation + 4);
    bytes.write(slot.relocation + 4, word & 0x0FFFFFFFU);
    bytes.write(slot.fileOffset, static_cast<std::uint64_t>(std::int64_t{slot.addend}));
}

// Both tables move to the end of the file, where they can grow. The linker reads no other table of symbols.
void ObjectPreparer::addMarkers() {
    auto& bytes = object_.bytes();
    const auto table = object_.command(MachOFormat::symbolTable).offset;
    const auto count = object_.symbols().size();
    const auto symbolsAt = bytes.read<std::uint32_t>(table + MachOFormat::dataOffsetField);
    const auto stringsAt = bytes.read<std::uint32_t>(table + MachOFormat::stringsOffsetField);
    const auto stringsSize = bytes.read<std::uint32_t>(table + MachOFormat::stringsSizeField);
    FileBytes symbols("symbols", {});
    FileBytes strings("strings", {});
    symbols.append(bytes.range(symbolsAt, count * MachOFormat::symbolSize));
    strings.append(bytes.range(stringsAt, stringsSize));
    for (const auto& slot : slots_) {
        symbols.append(static_cast<std::uint32_t>(strings.appendText(slot.schema.markerName(slot.number))));
        symbols.append(MachOFormat::definedInSection);
        symbols.append(static_cast<std::uint8_t>(slot.section + 1));
        symbols.append(MachOFormat::alternativeEntry);
        symbols.append(slot.address);
    }
    bytes.padTo(8);
    bytes.write(table + MachOFormat::dataOffsetField, static_cast<std::uint32_t>(bytes.size()));
    bytes.write(table + MachOFormat::symbolCountField, static_cast<std::uint32_t>(count + slots_.size()));
    bytes.append(symbols.all());
    bytes.write(table + MachOFormat::stringsOffsetField, static_cast<std::uint32_t>(bytes.size()));
    bytes.write(table + MachOFormat::stringsSizeField, static_cast<std::uint32_t>(strings.size()));
    bytes.append(strings.all());
}
