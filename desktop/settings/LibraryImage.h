#pragma once

#include "files/RegularFile.h"

#include <elf.h>

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <vector>

/// What a library's file says of itself, looked at before the host's loader is handed the file: the loader
/// trusts it, and the process would be killed for a library that is cut short. Covers the file's and the
/// segments' headers, and all places that the dynamic section names. Made for one look at a file.
class LibraryImage {
public:
    /// \returns or why this process cannot load the file, as the end of a sentence that starts with its name
    [[nodiscard]] static std::expected<void, std::string> check(const RegularFile& file);

private:
    using Verdict = std::expected<void, std::string>;

    /// As the file holds it.
    struct DynamicEntry {
        std::int64_t tag;
        std::uint64_t value; ///< an address or a size
    };

    explicit LibraryImage(const RegularFile& file);

    [[nodiscard]] Verdict checkAll();
    [[nodiscard]] Verdict checkHeader();
    [[nodiscard]] Verdict checkSegments();
    [[nodiscard]] Verdict checkLoadedSegments() const;
    [[nodiscard]] Verdict checkDynamicSection() const;

    [[nodiscard]] bool isInFile(std::uint64_t offset, std::uint64_t size) const;
    /// Whether the file fills these addresses of the loaded library.
    [[nodiscard]] bool isLoaded(std::uint64_t address, std::uint64_t size) const;
    [[nodiscard]] std::vector<DynamicEntry> dynamicEntries(const Elf64_Phdr& segment) const;
    [[nodiscard]] bool isInPlace(const std::vector<DynamicEntry>& entries) const;

    [[nodiscard]] static std::optional<std::uint64_t> valueOf(const std::vector<DynamicEntry>& entries,
                                                              std::int64_t tag);

    template <class T>
    [[nodiscard]] std::optional<T> read(std::uint64_t offset) const;

    const RegularFile& file_;
    const std::uint64_t size_;
    Elf64_Ehdr header_{};
    std::vector<Elf64_Phdr> segments_;
};
