#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UITapGestureRecognizer.h"
#include "touches/TapGestureRecognizer.h"

#include <string>

/// The contract's tap recogniser: the engine's one that does its work, and what that sends. The view that has
/// the engine's keeps this one alive.
class DesktopTapGestureRecognizer final : public UITapGestureRecognizer {
public:
    DesktopTapGestureRecognizer(NSObject& target, std::string action);

    /// What a view takes.
    [[nodiscard]] const Ref<TapGestureRecognizer>& recognizer() const { return recognizer_; }

    // UITapGestureRecognizer:
    [[nodiscard]] Ref<UIView> view() const override;

private:
    class Worker;

    void tapped();

    Weak<NSObject> target_;
    std::string action_;
    Ref<TapGestureRecognizer> recognizer_;
};
