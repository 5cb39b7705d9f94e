#pragma once

#include "Image.h"

#include <string>

/// The bundle that this process has been started to test.
class BundleUnderTest {
public:
    /// What the program was called with: FILE ARCHITECTURE, faults to plant (`--disturb-key=0`,
    /// `--disturb-slot=17`,
    /// `--unsigned-symbols`), and `--tell-place`, with which the address that the bundle is loaded at goes to
    /// the standard error. Other arguments are left to others.
    struct Call {
        std::string path;
        Architecture architecture = Architecture::Arm64;
        Image::Disturbance disturbance;
        bool leavesSymbolsUnsigned = false;
        bool tellsPlace = false;
    };

    /// Ends the program when it was called otherwise.
    [[nodiscard]] static Call readArguments(int count, char** arguments);

    /// Loads the bundle, publishes the classes of its records and runs what runs at load. Ends the program,
    /// and names them, when the bundle imports what nothing is known of.
    static void load(const Call& call);

    /// Null before that.
    [[nodiscard]] static const Image* image();
    [[nodiscard]] static const char* path();
    [[nodiscard]] static bool leavesSymbolsUnsigned();
};
