#pragma once

/// Light or dark.
enum class UserInterfaceStyle { Light, Dark };

/// The kind of device.
enum class Idiom { Phone, Pad };

/// What a view's looks depend on besides itself. Inherited from the superview.
struct Traits {
    UserInterfaceStyle style = UserInterfaceStyle::Light;
    Idiom idiom = Idiom::Phone;
    bool elevated = false;    ///< inside a sheet or a popover, which are a little lighter in dark appearance
    bool compactWidth = true; ///< a narrow place: a phone's screen, a column of a tablet's
    bool rightToLeft = false; ///< the device's language is read from right to left, and so is what is shown
    double displayScale = 3;  ///< pixels per point

    friend bool operator==(const Traits&, const Traits&) = default;
};
