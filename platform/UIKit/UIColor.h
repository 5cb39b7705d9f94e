#pragma once

#include "ObjectiveC/NSObject.h"

/// A colour. The system's named colours look different in light and dark appearance; every other one is the
/// same in both. Immutable.
class UIColor : public NSObject {
public:
    /// Red, green, blue and alpha in 0..1.
    [[nodiscard]] static Ref<UIColor> colorWithRed(double red, double green, double blue, double alpha);

    /// A grey, 0 being black.
    [[nodiscard]] static Ref<UIColor> colorWithWhite(double white, double alpha);

    [[nodiscard]] static Ref<UIColor> clearColor();
    [[nodiscard]] static Ref<UIColor> blackColor();
    [[nodiscard]] static Ref<UIColor> whiteColor();
    /// White 0.5.
    [[nodiscard]] static Ref<UIColor> grayColor();
    [[nodiscard]] static Ref<UIColor> yellowColor();
    /// White 2/3.
    [[nodiscard]] static Ref<UIColor> lightGrayColor();
    /// Of texts.
    [[nodiscard]] static Ref<UIColor> labelColor();
    [[nodiscard]] static Ref<UIColor> systemBlueColor();
    [[nodiscard]] static Ref<UIColor> systemGreenColor();
    [[nodiscard]] static Ref<UIColor> systemOrangeColor();
    [[nodiscard]] static Ref<UIColor> systemRedColor();
};
