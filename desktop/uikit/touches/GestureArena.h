#pragma once

#include "touches/GestureRecognizer.h"

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

/// The gesture recognisers that follow the finger, or wait for what comes after it, and who of them wins: the
/// first to recognise its gesture has the others fail. Made and owned by the touch dispatcher.
class GestureArena {
public:
    /// \param takeTouch called when a gesture that takes the touch from the views is recognised
    explicit GestureArena(std::function<void()> takeTouch) : takeTouch_(std::move(takeTouch)) {}

    /// The recognisers end without a word.
    ~GestureArena();
    GestureArena(const GestureArena&) = delete;
    GestureArena& operator=(const GestureArena&) = delete;

    // What the finger does. Each tells the recognisers that still follow it.
    /// Lets in the recognisers of `hit` and the views around it, the innermost first.
    void touchBegan(DesktopTouch& touch, UIView& hit);
    void touchMoved(DesktopTouch& touch);
    void touchEnded(DesktopTouch& touch);
    void touchCancelled(DesktopTouch& touch);
    /// The recognisers of a view and those within it lose the touch.
    void touchTakenFrom(const UIView& view);

    /// How long the views wait for the touch, since it may become a gesture.
    [[nodiscard]] std::chrono::nanoseconds holdTime(const UIView& hit) const;

    // For the recognisers.
    /// Whether one that goes before `recognizer` is still undecided.
    [[nodiscard]] bool mustWait(const GestureRecognizer& recognizer) const;
    /// The others that follow the touch fail.
    void recognized(GestureRecognizer& winner);
    /// A recogniser has failed or is gone: those that waited for it go on.
    void reconsider();
    void remove(const GestureRecognizer& recognizer);

private:
    using Members = std::vector<Ref<GestureRecognizer>>;

    Members members_;
    std::function<void()> takeTouch_;
    bool deciding_ = false; ///< while the others of a winner fail
};
