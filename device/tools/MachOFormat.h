#pragma once

#include <cstdint>

/// Numbers and offsets of the Mach-O file format, as far as the tools meet them.
struct MachOFormat {
    // Of the header.
    static constexpr std::uint32_t magic = 0xFEEDFACF;
    static constexpr std::uint32_t universalMagic =
        0xBEBAFECA; ///< big-endian in the file, read as little-endian
    static constexpr std::uint32_t processorArm64 = 0x0100000C;
    static constexpr std::uint32_t subtypeMask = 0x00FFFFFF;
    static constexpr std::uint64_t processorField = 4;
    static constexpr std::uint64_t subtypeField = 8;
    static constexpr std::uint64_t kindField = 12;
    static constexpr std::uint64_t commandCountField = 16;
    static constexpr std::uint64_t headerSize = 32;

    // Types of load commands.
    static constexpr std::uint32_t symbolTable = 0x02;
    static constexpr std::uint32_t dynamicSymbolTable = 0x0B;
    static constexpr std::uint32_t loadDylib = 0x0C;
    static constexpr std::uint32_t loadWeakDylib = 0x80000018;
    static constexpr std::uint32_t segment = 0x19;
    static constexpr std::uint32_t uuid = 0x1B;
    static constexpr std::uint32_t runPath = 0x8000001C;
    static constexpr std::uint32_t codeSignature = 0x1D;
    static constexpr std::uint32_t functionStarts = 0x26;
    static constexpr std::uint32_t dataInCode = 0x29;
    static constexpr std::uint32_t sourceVersion = 0x2A;
    static constexpr std::uint32_t encryptionInfo = 0x2C;
    static constexpr std::uint32_t buildVersion = 0x32;
    static constexpr std::uint32_t exportsTrie = 0x80000033;
    static constexpr std::uint32_t chainedFixups = 0x80000034;

    // Fields of load commands, from the command's start.
    static constexpr std::uint64_t dataOffsetField = 8; ///< of every command whose data is in __LINKEDIT
    static constexpr std::uint64_t dataSizeField = 12;
    static constexpr std::uint64_t symbolCountField = 12;
    static constexpr std::uint64_t stringsOffsetField = 16;
    static constexpr std::uint64_t stringsSizeField = 20;
    static constexpr std::uint64_t localSymbolsField =
        8; ///< first index and count, of three groups of symbols
    static constexpr std::uint64_t localCountField = 12;
    static constexpr std::uint64_t externalSymbolsField = 16;
    static constexpr std::uint64_t undefinedSymbolsField = 24;
    static constexpr std::uint64_t indirectOffsetField = 56;
    static constexpr std::uint64_t indirectCountField = 60;
    static constexpr std::uint64_t segmentMemorySizeField = 32;
    static constexpr std::uint64_t segmentFileSizeField = 48;

    // Symbols.
    static constexpr std::uint64_t symbolSize = 16;
    static constexpr std::uint8_t definedInSection = 0x0E;
    static constexpr std::uint8_t typeMask = 0x0E;
    static constexpr std::uint8_t debuggingMask = 0xE0;
    static constexpr std::uint16_t alternativeEntry = 0x0200;
    static constexpr std::uint32_t indirectLocalOrAbsolute = 0xC0000000;

    // Sections and relocations.
    static constexpr std::uint32_t sectionTypeMask = 0xFF;
    static constexpr std::uint32_t initialiserPointers = 9; ///< the type of __mod_init_func
    static constexpr std::uint64_t relocationSize = 8;
    static constexpr std::uint32_t signedPointerRelocation = 11;
};
