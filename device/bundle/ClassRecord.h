#pragma once

#include <cstdint>

/// The records of a class that the runtime finds in a program when it loads it, as a compiler of Objective-C
/// lays them out. A class that has them belongs to the program's bundle; one that is made at run time belongs
/// to none. Only the device's runtime reads them.

#ifdef __arm64e__
// The key for data, diversified by the address too, as the runtime signs these pointers.
#define SIGNED_CLASS_POINTER(diversity) __ptrauth(2, 1, diversity)
#else
#define SIGNED_CLASS_POINTER(diversity)
#endif

struct InstanceVariableRecord {
    std::int32_t* offset; ///< corrected by the runtime, which knows the size of the superclass's objects
    const char* name;
    const char* types;
    std::uint32_t alignmentLog2;
    std::uint32_t size;
};

struct InstanceVariableList {
    std::uint32_t elementSize;
    std::uint32_t count;
    InstanceVariableRecord only;
};

struct ClassContents {
    std::uint32_t flags;
    std::uint32_t instanceStart;
    std::uint32_t instanceSize;
    std::uint32_t reserved;
    const void* strongLayout;
    const char* name;
    const void* methods;
    const void* protocols;
    const InstanceVariableList* instanceVariables;
    const void* weakLayout;
    const void* properties;
};

/// The contents are not signed: not every runtime of iOS 15 could read them then.
struct ClassRecord {
    const void* SIGNED_CLASS_POINTER(0x6AE1) isa;
    const void* SIGNED_CLASS_POINTER(0xB5AB) superclass;
    const void* cache;
    const void* methodTable;
    const ClassContents* contents;
};

/// Says that a program has such records.
struct ImageInformation {
    std::uint32_t version;
    std::uint32_t flags;
};
