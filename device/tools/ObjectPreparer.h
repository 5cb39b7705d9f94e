#pragma once

#include "MachOFile.h"
#include "SignedSlot.h"

#include <cstddef>
#include <string>
#include <vector>

/// Readies an arm64e object for a linker that knows arm64 alone. Each relocation for a signed pointer becomes
/// a plain one, and a local symbol at the same place, whose name is the signature's schema, follows the
/// pointer through the link: it is an alternative entry, so that it does not split what the linker moves as a
/// whole.
class ObjectPreparer {
public:
    explicit ObjectPreparer(MachOFile object);

    [[nodiscard]] FileBytes prepared() &&;

    /// What the file of a prepared object is called, so that those of one link differ. `index` counts from 0.
    [[nodiscard]] static std::string fileName(std::size_t index, const std::string& objectPath);

private:
    void makePlain(const SignedSlot& slot);
    void addMarkers();

    MachOFile object_;
    std::vector<SignedSlot> slots_;
};
