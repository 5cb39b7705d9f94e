#include "LibraryImage.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

/// The header of the running program, as it was linked.
extern "C" const Elf64_Ehdr __ehdr_start; // NOLINT(*-reserved-identifier): the linker's name

namespace {

std::unexpected<std::string> because(const char* reason) {
    return std::unexpected<std::string>(reason);
}

constexpr auto cutShort = "is cut short";
constexpr auto damaged = "is damaged";

/// Entries of the dynamic section that hold addresses, each with the one that holds the size of what is
/// there; `DT_NULL` where the size is told elsewhere.
constexpr std::array<std::pair<Elf64_Sxword, Elf64_Sxword>, 12> tables{{
    {DT_STRTAB, DT_STRSZ},
    {DT_SYMTAB, DT_NULL},
    {DT_HASH, DT_NULL},
    {DT_GNU_HASH, DT_NULL},
    {DT_VERSYM, DT_NULL},
    {DT_VERNEED, DT_NULL},
    {DT_VERDEF, DT_NULL},
    {DT_RELA, DT_RELASZ},
    {DT_JMPREL, DT_PLTRELSZ},
    {DT_INIT_ARRAY, DT_INIT_ARRAYSZ},
    {DT_FINI_ARRAY, DT_FINI_ARRAYSZ},
    {DT_INIT, DT_NULL},
}};

bool isLoadedSegment(const Elf64_Phdr& segment) {
    return segment.p_type == PT_LOAD;
}

} // namespace

LibraryImage::LibraryImage(const RegularFile& file)
    : file_(file),
      size_(static_cast<std::uint64_t>(file.status().st_size)) {}

std::expected<void, std::string> LibraryImage::check(const RegularFile& file) {
    return LibraryImage(file).checkAll();
}

LibraryImage::Verdict LibraryImage::checkAll() {
    if (auto verdict = checkHeader(); !verdict)
        return verdict;
    if (auto verdict = checkSegments(); !verdict)
        return verdict;
    if (auto verdict = checkLoadedSegments(); !verdict)
        return verdict;
    return checkDynamicSection();
}

LibraryImage::Verdict LibraryImage::checkHeader() {
    std::array<unsigned char, SELFMAG> magic{};
    if (size_ == 0)
        return because("is empty");
    if (pread(file_.get(), magic.data(), SELFMAG, 0) != SELFMAG ||
        std::memcmp(magic.data(), ELFMAG, SELFMAG) != 0)
        return because("is no library");
    const auto header = read<Elf64_Ehdr>(0);
    if (!header)
        return because(cutShort);
    header_ = *header;
    const bool isForThisMachine =
        std::equal(header_.e_ident + EI_CLASS, header_.e_ident + EI_OSABI, __ehdr_start.e_ident + EI_CLASS) &&
        header_.e_machine == __ehdr_start.e_machine;
    if (!isForThisMachine)
        return because("is made for another kind of processor");
    return header_.e_type == ET_DYN ? Verdict() : because("is no library");
}

LibraryImage::Verdict LibraryImage::checkSegments() {
    if (header_.e_phentsize != sizeof(Elf64_Phdr) || header_.e_phnum == 0)
        return because(damaged);
    if (!isInFile(header_.e_phoff, std::uint64_t{header_.e_phnum} * sizeof(Elf64_Phdr)))
        return because(cutShort);
    for (std::uint64_t index = 0; index < header_.e_phnum; ++index) {
        const auto segment = read<Elf64_Phdr>(header_.e_phoff + index * sizeof(Elf64_Phdr));
        if (!segment)
            return because(cutShort);
        segments_.push_back(*segment);
    }
    return {};
}

LibraryImage::Verdict LibraryImage::checkLoadedSegments() const {
    std::uint64_t end = 0;
    for (const auto& segment : segments_) {
        if (segment.p_type != PT_LOAD)
            continue;
        if (!isInFile(segment.p_offset, segment.p_filesz))
            return because(cutShort);
        const auto segmentEnd = segment.p_vaddr + segment.p_memsz;
        if (segment.p_filesz > segment.p_memsz || segment.p_vaddr < end || segmentEnd < segment.p_vaddr)
            return because(damaged);
        end = segmentEnd;
    }
    return end > 0 ? Verdict() : because(damaged);
}

LibraryImage::Verdict LibraryImage::checkDynamicSection() const {
    const auto segment = std::ranges::find(segments_, Elf64_Word{PT_DYNAMIC}, &Elf64_Phdr::p_type);
    if (segment == segments_.end() || !isLoaded(segment->p_vaddr, segment->p_filesz))
        return because(damaged);
    const auto entries = dynamicEntries(*segment);
    const bool isClosed = !entries.empty() && entries.back().tag == DT_NULL;
    return isClosed && isInPlace(entries) ? Verdict() : because(damaged);
}

bool LibraryImage::isInFile(std::uint64_t offset, std::uint64_t size) const {
    return offset <= size_ && size <= size_ - offset;
}

bool LibraryImage::isLoaded(std::uint64_t address, std::uint64_t size) const {
    return std::ranges::any_of(segments_, [&](const Elf64_Phdr& segment) {
        return isLoadedSegment(segment) && address >= segment.p_vaddr &&
               address - segment.p_vaddr <= segment.p_filesz &&
               size <= segment.p_filesz - (address - segment.p_vaddr);
    });
}

std::vector<LibraryImage::DynamicEntry> LibraryImage::dynamicEntries(const Elf64_Phdr& segment) const {
    // Read where the loader reads it: at its address, whatever offset the segment gives besides.
    const auto load = std::ranges::find_if(segments_, [&](const Elf64_Phdr& candidate) {
        return isLoadedSegment(candidate) && segment.p_vaddr >= candidate.p_vaddr &&
               segment.p_vaddr - candidate.p_vaddr < candidate.p_filesz;
    });
    std::vector<DynamicEntry> entries;
    if (load == segments_.end())
        return entries;
    const auto offset = load->p_offset + (segment.p_vaddr - load->p_vaddr);
    for (std::uint64_t index = 0; index < segment.p_filesz / sizeof(DynamicEntry); ++index) {
        const auto entry = read<DynamicEntry>(offset + index * sizeof(DynamicEntry));
        if (!entry)
            break;
        entries.push_back(*entry);
        if (entry->tag == DT_NULL)
            break;
    }
    return entries;
}

std::optional<std::uint64_t> LibraryImage::valueOf(const std::vector<DynamicEntry>& entries,
                                                   std::int64_t tag) {
    const auto entry = std::ranges::find(entries, tag, &DynamicEntry::tag);
    return entry == entries.end() ? std::nullopt : std::optional(entry->value);
}

bool LibraryImage::isInPlace(const std::vector<DynamicEntry>& entries) const {
    if (!valueOf(entries, DT_STRTAB) || !valueOf(entries, DT_SYMTAB))
        return false;
    return std::ranges::all_of(tables, [&](const auto& table) {
        const auto address = valueOf(entries, table.first);
        const auto size = table.second == DT_NULL ? 1 : valueOf(entries, table.second).value_or(0);
        return !address || isLoaded(*address, size);
    });
}

template <class T>
std::optional<T> LibraryImage::read(std::uint64_t offset) const {
    T value{};
    if (!isInFile(offset, sizeof value))
        return std::nullopt;
    const auto count = pread(file_.get(), &value, sizeof value, static_cast<off_t>(offset));
    return count == static_cast<ssize_t>(sizeof value) ? std::optional(value) : std::nullopt;
}
