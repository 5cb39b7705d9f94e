#pragma once

#include "FileBytes.h"
#include "MachOFile.h"

#include <cstdint>

/// Writes an image's last segment anew, without its local symbols and without a signature: tables that grow
/// or shrink need their followers moved. Refuses an image with load commands whose data it does not know to
/// move.
class LinkEdit {
public:
    explicit LinkEdit(MachOFile& image);

    /// \param fixups the new data of the load command for chained fixups
    void rewrite(const FileBytes& fixups);

private:
    void checkCommands() const;
    void addData(std::uint32_t type, std::span<const std::uint8_t> data);
    void addSymbols();
    void addIndirectSymbols();
    void addStrings();
    [[nodiscard]] std::uint32_t field(std::uint32_t command, std::uint64_t field) const;
    void setField(std::uint32_t command, std::uint64_t field, std::uint64_t value);

    MachOFile& image_;
    FileBytes rewritten_; ///< the segment as it becomes
    std::uint64_t start_; ///< of the segment in the file
    std::uint32_t localCount_;
};
