#include "LibraryImage.h"

#include "BundleFixture.h"

#include <elf.h>
#include <fcntl.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

class LibraryImageTest : public BundleFixture {
protected:
    /// What is said of a file of these bytes; "" when it may be loaded.
    [[nodiscard]] std::string verdictOn(const std::string& bytes) const {
        device.write("/library", bytes);
        const auto file = RegularFile::open(Device::current().root(), "/library", O_RDONLY);
        EXPECT_TRUE(file.has_value());
        const auto verdict = LibraryImage::check(*file);
        return verdict ? "" : verdict.error();
    }

    [[nodiscard]] Elf64_Ehdr header() const {
        Elf64_Ehdr read{};
        std::memcpy(&read, library.data(), sizeof read);
        return read;
    }

    /// The library with a value of its header, or of anything at an offset, replaced.
    template <class T>
    [[nodiscard]] std::string with(std::size_t offset, T value) const {
        auto changed = library;
        std::memcpy(changed.data() + offset, &value, sizeof value);
        return changed;
    }

    [[nodiscard]] std::vector<Elf64_Phdr> segments() const {
        std::vector<Elf64_Phdr> read(header().e_phnum);
        std::memcpy(read.data(), library.data() + header().e_phoff, read.size() * sizeof(Elf64_Phdr));
        return read;
    }

    [[nodiscard]] std::size_t offsetOfSegment(Elf64_Word type) const {
        const auto all = segments();
        const auto found = std::ranges::find(all, type, &Elf64_Phdr::p_type);
        return header().e_phoff + static_cast<std::size_t>(found - all.begin()) * sizeof(Elf64_Phdr);
    }

    [[nodiscard]] std::size_t endOfLoadedBytes() const {
        std::size_t end = 0;
        for (const auto& segment : segments()) {
            if (segment.p_type == PT_LOAD)
                end = std::max(end, segment.p_offset + segment.p_filesz);
        }
        return end;
    }

    /// Where the dynamic section's entry of that tag is.
    [[nodiscard]] std::size_t offsetOfDynamicEntry(Elf64_Sxword tag) const {
        const auto all = segments();
        const auto dynamic = std::ranges::find(all, Elf64_Word{PT_DYNAMIC}, &Elf64_Phdr::p_type);
        for (auto offset = dynamic->p_offset;; offset += sizeof(Elf64_Dyn)) {
            Elf64_Dyn entry{};
            std::memcpy(&entry, library.data() + offset, sizeof entry);
            if (entry.d_tag == tag)
                return offset;
        }
    }

    const std::string library = builtCode("StandInPage");
};

} // namespace

TEST_F(LibraryImageTest, TakesALibraryAsItWasBuilt) {
    EXPECT_EQ(verdictOn(library), "");
}

TEST_F(LibraryImageTest, RefusesAnEmptyFile) {
    EXPECT_EQ(verdictOn(""), "is empty");
}

TEST_F(LibraryImageTest, RefusesWhatIsNoLibrary) {
    EXPECT_EQ(verdictOn("#!/bin/sh\n"), "is no library");
    EXPECT_EQ(verdictOn("\x7f"), "is no library");
    EXPECT_EQ(verdictOn(with<Elf64_Half>(offsetof(Elf64_Ehdr, e_type), ET_EXEC)), "is no library");
    EXPECT_EQ(verdictOn(with<Elf64_Half>(offsetof(Elf64_Ehdr, e_type), ET_REL)), "is no library");
}

TEST_F(LibraryImageTest, RefusesAnotherProcessorsLibrary) {
    constexpr auto reason = "is made for another kind of processor";
    EXPECT_EQ(verdictOn(with<Elf64_Half>(offsetof(Elf64_Ehdr, e_machine), EM_S390)), reason);
    EXPECT_EQ(verdictOn(with<unsigned char>(EI_CLASS, ELFCLASS32)), reason);
    EXPECT_EQ(verdictOn(with<unsigned char>(EI_DATA, ELFDATA2MSB)), reason);
}

TEST_F(LibraryImageTest, RefusesALibraryThatIsCutShortAnywhereInWhatIsLoaded) {
    const auto end = endOfLoadedBytes();
    for (std::size_t length = SELFMAG; length < end; length += 61)
        EXPECT_EQ(verdictOn(library.substr(0, length)), "is cut short") << length << " bytes";
    EXPECT_EQ(verdictOn(library.substr(0, end - 1)), "is cut short");
    EXPECT_EQ(verdictOn(library.substr(0, end)), "");
}

TEST_F(LibraryImageTest, RefusesHeadersThatMakeNoSense) {
    EXPECT_EQ(verdictOn(with<Elf64_Half>(offsetof(Elf64_Ehdr, e_phnum), 0)), "is damaged");
    EXPECT_EQ(verdictOn(with<Elf64_Half>(offsetof(Elf64_Ehdr, e_phentsize), 8)), "is damaged");
    EXPECT_EQ(verdictOn(with<Elf64_Off>(offsetof(Elf64_Ehdr, e_phoff), ~Elf64_Off{0})), "is cut short");
}

TEST_F(LibraryImageTest, RefusesSegmentsThatMakeNoSense) {
    const auto load = offsetOfSegment(PT_LOAD);
    EXPECT_EQ(verdictOn(with<Elf64_Xword>(load + offsetof(Elf64_Phdr, p_filesz), ~Elf64_Xword{0})),
              "is cut short");
    EXPECT_EQ(verdictOn(with<Elf64_Off>(load + offsetof(Elf64_Phdr, p_offset), ~Elf64_Off{0})),
              "is cut short");
    EXPECT_EQ(verdictOn(with<Elf64_Xword>(load + offsetof(Elf64_Phdr, p_memsz), 1)), "is damaged");
    EXPECT_EQ(verdictOn(with<Elf64_Addr>(load + offsetof(Elf64_Phdr, p_vaddr), ~Elf64_Addr{0})),
              "is damaged");
}

TEST_F(LibraryImageTest, RefusesALibraryWithoutADynamicSection) {
    const auto dynamic = offsetOfSegment(PT_DYNAMIC);
    EXPECT_EQ(verdictOn(with<Elf64_Word>(dynamic, PT_NULL)), "is damaged");
    EXPECT_EQ(verdictOn(with<Elf64_Addr>(dynamic + offsetof(Elf64_Phdr, p_vaddr), 0x7fff0000)), "is damaged");
    EXPECT_EQ(verdictOn(with<Elf64_Xword>(dynamic + offsetof(Elf64_Phdr, p_filesz), sizeof(Elf64_Dyn))),
              "is damaged");
}

TEST_F(LibraryImageTest, RefusesTablesThatAreNotInTheFile) {
    constexpr auto value = offsetof(Elf64_Dyn, d_un);
    for (const Elf64_Sxword tag : {DT_STRTAB, DT_SYMTAB, DT_GNU_HASH, DT_RELA, DT_INIT_ARRAY, DT_VERNEED}) {
        const auto entry = offsetOfDynamicEntry(tag);
        EXPECT_EQ(verdictOn(with<Elf64_Addr>(entry + value, 0x7fff0000)), "is damaged") << tag;
    }
    for (const Elf64_Sxword tag : {DT_STRSZ, DT_RELASZ, DT_INIT_ARRAYSZ}) {
        const auto entry = offsetOfDynamicEntry(tag);
        EXPECT_EQ(verdictOn(with<Elf64_Xword>(entry + value, 0x7fff0000)), "is damaged") << tag;
    }
    EXPECT_EQ(verdictOn(with<Elf64_Sxword>(offsetOfDynamicEntry(DT_SYMTAB), DT_DEBUG)), "is damaged");
}

TEST_F(LibraryImageTest, NoHeaderHoweverDamagedHurtsTheLook) {
    // NOLINTNEXTLINE(*-msc32-c,*-msc51-cpp,*-generator-seed): the same bytes every time
    std::mt19937 random(20261116);
    std::size_t refused = 0;
    for (auto round = 0; round < 300; ++round) {
        auto changed = library;
        for (auto change = 0; change < 4; ++change)
            changed[random() % 1024] = static_cast<char>(random());
        refused += verdictOn(changed).empty() ? 0U : 1U;
    }
    EXPECT_GT(refused, 75U);
}
