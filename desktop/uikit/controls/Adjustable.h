#pragma once

/// What stands at one of many values in a row and can be set to the next by the arrow keys, and by people who
/// do not see it. The peer of such a control derives from it.
class Adjustable {
public:
    virtual ~Adjustable() = default;

    /// As a finger would, by one step; nothing happens at the end of the values, and while it is disabled.
    virtual void adjust(bool up) = 0;
};
