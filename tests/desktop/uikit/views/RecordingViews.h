#pragma once

#include "UIKit/UIView.h"
#include "controls/UIControlPeer.h"
#include "touches/GestureRecognizer.h"

#include <string>
#include <vector>

/// A view that writes down the touches that it gets: "<name> began", "moved", "ended", "cancelled".
class RecordingView final : public UIView {
public:
    RecordingView(std::string name, std::vector<std::string>& events);
};

/// A control that writes down its tracking and its events, each with whether it tracks (t) and is highlighted
/// (h) just then: "begin t", "down th" and so on.
class RecordingControl final : public UIControl {
public:
    explicit RecordingControl(std::vector<std::string>& events);

    [[nodiscard]] UIControlPeer& controlPeer() const { return peerOf<UIControlPeer>(*this); }

    // UIControl:
    bool beginTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    bool continueTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void endTrackingWithTouch(UITouch& touch, UIEvent* event) override;
    void cancelTrackingWithEvent(UIEvent* event) override;

    bool begins = true;
    bool continues = true;

private:
    void note(const std::string& event);

    std::vector<std::string>& events_;
};

/// Has a recogniser's steps written down: "<name> began" and so on.
void record(GestureRecognizer& recognizer, std::string name, std::vector<std::string>& events);
