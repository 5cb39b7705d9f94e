#pragma once

#include "FileBytes.h"

#include <cstdint>
#include <string>
#include <vector>

/// One 64-bit Mach-O file for arm64, an object or an image: its bytes, and where in them things are. A file
/// that is none of these is refused.
class MachOFile {
public:
    enum class Kind : std::uint32_t { Object = 1, Bundle = 8 };

    /// The sub-types of the processor, without their capability bits.
    enum class Subtype : std::uint32_t { Arm64 = 0, Arm64e = 2 };

    struct LoadCommand {
        std::uint32_t type;
        std::uint32_t size;
        std::uint64_t offset; ///< in the file
    };

    struct Segment {
        std::string name;
        std::uint64_t commandOffset;
        std::uint64_t address;
        std::uint64_t memorySize;
        std::uint64_t fileOffset;
        std::uint64_t fileSize;
    };

    struct Section {
        std::string name;
        std::uint64_t address;
        std::uint64_t size;
        std::uint32_t fileOffset;
        std::uint32_t relocationsOffset;
        std::uint32_t relocationCount;
        std::uint32_t flags;

        [[nodiscard]] bool contains(std::uint64_t place) const {
            return place >= address && place - address < size;
        }
    };

    struct Symbol {
        std::string name;
        std::uint8_t type;
        std::uint8_t section; ///< counted from 1; 0 for none
        std::uint16_t description;
        std::uint64_t value;

        [[nodiscard]] bool isDefined() const;
        /// A name for a place within what another symbol begins.
        [[nodiscard]] bool isAlternativeEntry() const;
    };

    /// Reads a file of one architecture, or that architecture's slice of a universal file.
    MachOFile(FileBytes bytes, Kind kind, Subtype subtype);

    [[nodiscard]] FileBytes& bytes() { return bytes_; }

    [[nodiscard]] const FileBytes& bytes() const { return bytes_; }

    [[nodiscard]] const std::vector<LoadCommand>& commands() const { return commands_; }

    /// The only load command of a type; refused when there is none, or more than one.
    [[nodiscard]] const LoadCommand& command(std::uint32_t type) const;

    [[nodiscard]] const std::vector<Segment>& segments() const { return segments_; }

    [[nodiscard]] const Segment& segment(const std::string& name) const;

    [[nodiscard]] const std::vector<Section>& sections() const { return sections_; }

    [[nodiscard]] const std::vector<Symbol>& symbols() const { return symbols_; }

    /// Where the byte of an address is in the file.
    [[nodiscard]] std::uint64_t fileOffset(std::uint64_t address) const;

private:
    void checkHeader(Kind kind, Subtype subtype) const;
    void readCommands();
    void readSegment(std::uint64_t command);
    void readSymbols();

    FileBytes bytes_;
    std::vector<LoadCommand> commands_;
    std::vector<Segment> segments_;
    std::vector<Section> sections_;
    std::vector<Symbol> symbols_;
};
