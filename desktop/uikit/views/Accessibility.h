#pragma once

#include <string>

/// What an element is to somebody who does not see it.
enum class AccessibilityRole {
    None,
    Button,
    StaticText,
    Image,
    Switch,
    Header,
    Link,
    TextField,
    Slider,
    Choice
};

/// How a view tells of itself to assistive programs and to scripts.
struct Accessibility {
    std::string label; ///< what it is called; the view's own text when this is empty
    std::string value; ///< what it is set to
    AccessibilityRole role = AccessibilityRole::None;
    bool isElement = false; ///< one thing: its subviews are not told of
    bool isLeftOut = false; ///< something else tells of it and of all that is in it
};
