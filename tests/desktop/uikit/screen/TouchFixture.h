#pragma once

#include "Phone.h"
#include "views/UIViewPeer.h"

#include <string>
#include <vector>

/// A phone's screen with a window, and a finger on it. What happens is written down in `events`.
class TouchFixture : public Phone {
protected:
    using Events = std::vector<std::string>;

    using Phone::Phone;
    using Phone::tap;

    void down(double x, double y) { Phone::down({x, y}); }

    void move(double x, double y) { Phone::move({x, y}); }

    void up(double x, double y) { Phone::up({x, y}); }

    void tap(double x, double y) { tap(CGPoint{x, y}); }

    /// What has happened since this was last asked.
    Events takeEvents();

    Events events;
};
