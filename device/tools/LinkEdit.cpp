#include "LinkEdit.h"

#include "MachOFormat.h"
#include "Refusal.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// Those that `rewrite` moves the data of, and those without data in the segment.
constexpr std::array knownCommands{
    MachOFormat::chainedFixups, MachOFormat::exportsTrie,   MachOFormat::functionStarts,
    MachOFormat::dataInCode,    MachOFormat::symbolTable,   MachOFormat::dynamicSymbolTable,
    MachOFormat::codeSignature, MachOFormat::segment,       MachOFormat::uuid,
    MachOFormat::buildVersion,  MachOFormat::sourceVersion, MachOFormat::loadDylib,
    MachOFormat::loadWeakDylib, MachOFormat::runPath,       MachOFormat::encryptionInfo,
};

constexpr std::size_t alignment = 8;

} // namespace

LinkEdit::LinkEdit(MachOFile& image)
    : image_(image),
      rewritten_("__LINKEDIT", {}),
      start_(image.segment("__LINKEDIT").fileOffset),
      localCount_(field(MachOFormat::dynamicSymbolTable, MachOFormat::localCountField)) {
    checkCommands();
}

void LinkEdit::checkCommands() const {
    for (const auto& command : image_.commands())
        if (std::ranges::find(knownCommands, command.type) == knownCommands.end())
            image_.bytes().refuse("has a load command " + hexadecimal(command.type) +
                                  ", which may have data that would be lost");
    if (localCount_ > 0 && field(MachOFormat::dynamicSymbolTable, MachOFormat::localSymbolsField) != 0)
        image_.bytes().refuse("does not have its local symbols first");
    if (image_.segments().back().name != "__LINKEDIT")
        image_.bytes().refuse("does not have __LINKEDIT last");
}

void LinkEdit::rewrite(const FileBytes& fixups) {
    addData(MachOFormat::chainedFixups, fixups.all());
    for (const auto type : {MachOFormat::exportsTrie, MachOFormat::functionStarts, MachOFormat::dataInCode}) {
        const auto offset = field(type, MachOFormat::dataOffsetField);
        addData(type, image_.bytes().range(offset, field(type, MachOFormat::dataSizeField)));
    }
    addSymbols();
    addIndirectSymbols();
    addStrings();
    image_.bytes().truncate(start_);
    image_.bytes().append(rewritten_.all());
}

void LinkEdit::addData(std::uint32_t type, std::span<const std::uint8_t> data) {
    rewritten_.padTo(alignment);
    setField(type, MachOFormat::dataOffsetField, start_ + rewritten_.size());
    setField(type, MachOFormat::dataSizeField, data.size());
    rewritten_.append(data);
}

void LinkEdit::addSymbols() {
    constexpr std::array groups{MachOFormat::externalSymbolsField, MachOFormat::undefinedSymbolsField};
    const auto entries = field(MachOFormat::symbolTable, MachOFormat::dataOffsetField);
    const auto count = field(MachOFormat::symbolTable, MachOFormat::symbolCountField) - localCount_;
    const auto kept = image_.bytes().range(entries + localCount_ * MachOFormat::symbolSize,
                                           count * MachOFormat::symbolSize);
    rewritten_.padTo(alignment);
    setField(MachOFormat::symbolTable, MachOFormat::dataOffsetField, start_ + rewritten_.size());
    setField(MachOFormat::symbolTable, MachOFormat::symbolCountField, count);
    setField(MachOFormat::dynamicSymbolTable, MachOFormat::localCountField, 0);
    for (const auto group : groups)
        setField(MachOFormat::dynamicSymbolTable, group,
                 field(MachOFormat::dynamicSymbolTable, group) - std::uint64_t{localCount_});
    rewritten_.append(kept);
}

void LinkEdit::addIndirectSymbols() {
    const auto entries = field(MachOFormat::dynamicSymbolTable, MachOFormat::indirectOffsetField);
    const auto count = field(MachOFormat::dynamicSymbolTable, MachOFormat::indirectCountField);
    rewritten_.padTo(alignment);
    setField(MachOFormat::dynamicSymbolTable, MachOFormat::indirectOffsetField, start_ + rewritten_.size());
    for (std::uint64_t i = 0; i < count; ++i) {
        const auto index = image_.bytes().read<std::uint32_t>(entries + 4 * i);
        const auto isSymbol = (index & MachOFormat::indirectLocalOrAbsolute) == 0;
        if (isSymbol && index < localCount_)
            image_.bytes().refuse("has a stub for the local symbol " + image_.symbols().at(index).name);
        rewritten_.append(isSymbol ? index - localCount_ : index);
    }
}

// The symbols before this are entries of the old table; each gets its name's new place.
void LinkEdit::addStrings() {
    const auto symbols = field(MachOFormat::symbolTable, MachOFormat::dataOffsetField) - start_;
    FileBytes strings("names of symbols", {' ', 0});
    for (std::size_t i = localCount_; i < image_.symbols().size(); ++i)
        rewritten_.write(symbols + (i - localCount_) * MachOFormat::symbolSize,
                         static_cast<std::uint32_t>(strings.appendText(image_.symbols()[i].name)));
    rewritten_.padTo(alignment);
    setField(MachOFormat::symbolTable, MachOFormat::stringsOffsetField, start_ + rewritten_.size());
    setField(MachOFormat::symbolTable, MachOFormat::stringsSizeField, strings.size());
    rewritten_.append(strings.all());
}

std::uint32_t LinkEdit::field(std::uint32_t command, std::uint64_t field) const {
    return image_.bytes().read<std::uint32_t>(image_.command(command).offset + field);
}

void LinkEdit::setField(std::uint32_t command, std::uint64_t field, std::uint64_t value) {
    image_.bytes().write(image_.command(command).offset + field, static_cast<std::uint32_t>(value));
}
