#pragma once

#include "UIKit/NSLayoutYAxisAnchor.h"

/// A rectangle of a view that constraints can refer to, such as its safe area. Made by the view, which it
/// does not keep alive.
class UILayoutGuide : public NSObject {
public:
    [[nodiscard]] virtual Ref<NSLayoutYAxisAnchor> topAnchor() const = 0;
    [[nodiscard]] virtual Ref<NSLayoutYAxisAnchor> centerYAnchor() const = 0;
};
