#pragma once

#include "ObjectiveC/Weak.h"
#include "screen/Presented.h"

#include <vector>

/// What is presented above the application, in the order in which it was presented. Part of the screen; keeps
/// nothing alive.
class Presentations {
public:
    /// \param object who implements `presented`; the entry ends with it at the latest
    void add(NSObject& object, Presented& presented);
    /// What has the keyboard in it has it no more. Nothing happens when it is not among them.
    void remove(const Presented& presented);

    /// Begins to take away what goes when the application is left.
    void dismissTransient() const;

    /// The topmost one last; without those in windows that take no touches.
    [[nodiscard]] std::vector<Presented*> all() const;

    /// The topmost one; null when nothing is presented.
    [[nodiscard]] Presented* top() const;

private:
    struct Entry {
        Weak<NSObject> object;
        Presented* presented;
    };

    std::vector<Entry> entries_;
};
