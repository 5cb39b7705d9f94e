#pragma once

#include "Image.h"

/// The classes that a bundle brings as records, which the device's runtime reads where they are. GNU's
/// runtime knows records of another kind, so each class is made anew, as its record says.
class ClassRecords {
public:
    /// Ends the program when a record is not sound.
    static void publish(const Image& image);
};
