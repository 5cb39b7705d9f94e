#include "screen/Presentations.h"

#include "ObjectiveC/NSObject.h"
#include "UIKit/UIView.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

namespace {

/// Whether the window that it is in, if any, is in use: an application that was left keeps what it presents.
bool isInUse(const Presented& presented) {
    const auto* const window = presented.shownView().peer().window();
    return window == nullptr || window->peer().isUserInteractionEnabled();
}

} // namespace

void Presentations::add(NSObject& object, Presented& presented) {
    std::erase_if(entries_, [](const Entry& entry) { return !entry.object.strong(); });
    entries_.push_back({Weak<NSObject>(&object), &presented});
}

void Presentations::remove(const Presented& presented) {
    const auto removed =
        std::erase_if(entries_, [&presented](const Entry& entry) { return entry.presented == &presented; });
    if (removed > 0)
        Screen::current().firstResponder().removeIn(presented.shownView());
}

std::vector<Presented*> Presentations::all() const {
    std::vector<Presented*> living;
    for (const auto& entry : entries_) {
        if (entry.object.strong() && isInUse(*entry.presented))
            living.push_back(entry.presented);
    }
    return living;
}

void Presentations::dismissTransient() const {
    for (auto* const presented : all()) {
        if (presented->isTransient())
            presented->dismissPresented();
    }
}

Presented* Presentations::top() const {
    const auto living = all();
    return living.empty() ? nullptr : living.back();
}
