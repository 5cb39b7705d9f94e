#include "views/RecordingViews.h"

#include <array>
#include <utility>

namespace {

class RecordingPeer final : public UIViewPeer {
public:
    RecordingPeer(std::string name, std::vector<std::string>& events)
        : name_(std::move(name)),
          events_(events) {}

    // UIViewPeer:
    void touchBegan(DesktopTouch& /*touch*/, UIEvent& /*event*/) override { note("began"); }

    void touchMoved(DesktopTouch& /*touch*/, UIEvent& /*event*/) override { note("moved"); }

    void touchEnded(DesktopTouch& /*touch*/, UIEvent& /*event*/) override { note("ended"); }

    void touchCancelled(DesktopTouch& /*touch*/, UIEvent& /*event*/) override { note("cancelled"); }

private:
    void note(const char* what) { events_.push_back(name_ + " " + what); }

    std::string name_;
    std::vector<std::string>& events_;
};

struct NamedEvent {
    UIControlEvents event;
    const char* name;
};

constexpr std::array<NamedEvent, 9> namedEvents{{{UIControlEvents::TouchDown, "down"},
                                                 {UIControlEvents::TouchDragInside, "drag inside"},
                                                 {UIControlEvents::TouchDragOutside, "drag outside"},
                                                 {UIControlEvents::TouchDragEnter, "drag enter"},
                                                 {UIControlEvents::TouchDragExit, "drag exit"},
                                                 {UIControlEvents::TouchUpInside, "up inside"},
                                                 {UIControlEvents::TouchUpOutside, "up outside"},
                                                 {UIControlEvents::TouchCancel, "touch cancel"},
                                                 {UIControlEvents::ValueChanged, "value changed"}}};

std::string nameOf(GestureRecognizer::State state) {
    constexpr std::array names{"possible", "began", "changed", "ended", "cancelled", "failed"};
    return names.at(static_cast<std::size_t>(state));
}

} // namespace

RecordingView::RecordingView(std::string name, std::vector<std::string>& events)
    : UIView(std::make_unique<RecordingPeer>(std::move(name), events)) {}

RecordingControl::RecordingControl(std::vector<std::string>& events) : events_(events) {
    for (const auto& [event, name] : namedEvents)
        controlPeer().addHandler(event, [this, name] { note(name); });
}

bool RecordingControl::beginTrackingWithTouch(UITouch& touch, UIEvent* event) {
    note("begin");
    return UIControl::beginTrackingWithTouch(touch, event) && begins;
}

bool RecordingControl::continueTrackingWithTouch(UITouch& touch, UIEvent* event) {
    note("continue");
    return UIControl::continueTrackingWithTouch(touch, event) && continues;
}

void RecordingControl::endTrackingWithTouch(UITouch& touch, UIEvent* event) {
    note("end");
    UIControl::endTrackingWithTouch(touch, event);
}

void RecordingControl::cancelTrackingWithEvent(UIEvent* event) {
    note("cancel");
    UIControl::cancelTrackingWithEvent(event);
}

void RecordingControl::note(const std::string& event) {
    const std::string state =
        std::string(isTracking() ? "t" : "") + (controlPeer().isHighlighted() ? "h" : "");
    events_.push_back(state.empty() ? event : event + " " + state);
}

void record(GestureRecognizer& recognizer, std::string name, std::vector<std::string>& events) {
    recognizer.addHandler([&recognizer, &events, name = std::move(name)] {
        events.push_back(name + " " + nameOf(recognizer.state()));
    });
}
