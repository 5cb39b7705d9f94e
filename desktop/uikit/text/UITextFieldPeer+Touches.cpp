#include "text/UITextFieldPeer.h"

#include <cmath>
#include <utility>

namespace {

constexpr double tapSlop = 10;                         ///< points
constexpr std::chrono::milliseconds longestPause{350}; ///< between two taps that belong together

double distance(CGPoint left, CGPoint right) {
    return std::hypot(left.x - right.x, left.y - right.y);
}

} // namespace

void UITextFieldPeer::touchBegan(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchBegan(touch, event);
    if (isTracking())
        press_ = {.place = touch.place(), .start = positionAt(touch)};
}

void UITextFieldPeer::touchMoved(DesktopTouch& touch, UIEvent& event) {
    UIControlPeer::touchMoved(touch, event);
    if (!press_ || !isFirstResponder_)
        return;
    if (!press_->selects && std::abs(touch.place().x - press_->place.x) >= tapSlop) {
        press_->selects = true;
        edit([start = press_->start](EditedText& text) { text.placeCaret(start); });
    }
    if (press_ && press_->selects) // an edit may have ended the press
        edit([position = positionAt(touch)](EditedText& text) {
            text.placeCaret(position, EditedText::Selecting::Yes);
        });
}

void UITextFieldPeer::touchEnded(DesktopTouch& touch, UIEvent& event) {
    const auto kept = retain(&control());
    const auto press = std::exchange(press_, std::nullopt);
    UIControlPeer::touchEnded(touch, event);
    if (press && !press->selects && distance(touch.place(), press->place) < tapSlop)
        tapped(touch);
}

void UITextFieldPeer::touchCancelled(DesktopTouch& touch, UIEvent& event) {
    press_.reset();
    UIControlPeer::touchCancelled(touch, event);
}

void UITextFieldPeer::countTap(const DesktopTouch& touch) {
    const auto follows = touch.time() - lastTap_.time <= longestPause &&
                         distance(touch.place(), lastTap_.place) < tapSlop && lastTap_.count > 0;
    lastTap_ = {.place = touch.place(), .time = touch.time(), .count = follows ? lastTap_.count + 1 : 1};
}

/// The first tap brings the keyboard and places the caret; the second takes the word, the third everything.
void UITextFieldPeer::tapped(const DesktopTouch& touch) {
    countTap(touch);
    const auto position = positionAt(touch);
    if (!becomeFirstResponder())
        return;
    edit([position, count = lastTap_.count](EditedText& text) {
        if (count == 1)
            text.placeCaret(position);
        else if (count == 2)
            text.selectWordAt(position);
        else
            text.selectAll();
    });
}
