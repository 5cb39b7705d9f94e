#include "ElementSearch.h"

#include "UIKit/UIControl.h"
#include "UIKit/UITableViewCell.h"
#include "accessibility/AccessibilityElement.h"
#include "screen/Screen.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

namespace {

constexpr double placeTolerance = 0.5; ///< points; a row that is made anew may be placed a little differently

bool isNear(CGPoint left, CGPoint right) {
    return std::abs(left.x - right.x) < placeTolerance && std::abs(left.y - right.y) < placeTolerance;
}

bool isBefore(CGPoint left, CGPoint right) {
    return std::tie(left.y, left.x) < std::tie(right.y, right.x);
}

/// The outermost view that scrolls up and down in the view; null when there is none.
UIScrollView* scrollViewIn(UIView& view) {
    if (!isShown(view))
        return nullptr;
    auto* const scroll = dynamic_cast<UIScrollView*>(&view);
    if (scroll != nullptr && peerOf<UIScrollViewPeer>(*scroll).maximumOffset().y >
                                 peerOf<UIScrollViewPeer>(*scroll).minimumOffset().y)
        return scroll;
    const auto& subviews = view.peer().subviews();
    for (auto index = subviews.size(); index-- > 0;) {
        if (auto* const found = scrollViewIn(*subviews[index]))
            return found;
    }
    return nullptr;
}

CGPoint placeOf(const UIView& view, const UIScrollView& scroll) {
    return view.peer().convertTo(scroll, view.bounds().origin);
}

/// In a row, a switch has the label that is written beside it: then that text is none of its own.
void leaveToControls(std::vector<Ref<UIView>>& views) {
    const auto isControl = [](const Ref<UIView>& view) {
        return dynamic_cast<const UIControl*>(view.get()) != nullptr;
    };
    if (std::ranges::any_of(views, isControl))
        std::erase_if(views, std::not_fn(isControl));
}

/// While it lives the view may be scrolled anywhere; it is put back at the end.
class OffsetKeeper {
public:
    explicit OffsetKeeper(UIScrollViewPeer& scroll) : scroll_(scroll), offset_(scroll.contentOffset()) {}

    ~OffsetKeeper() { moveTo(offset_); }

    OffsetKeeper(const OffsetKeeper&) = delete;
    OffsetKeeper& operator=(const OffsetKeeper&) = delete;

    void moveTo(CGPoint offset) {
        scroll_.setContentOffset(offset);
        Screen::current().layoutIfNeeded();
    }

    [[nodiscard]] CGPoint offset() const { return offset_; }

private:
    UIScrollViewPeer& scroll_;
    CGPoint offset_;
};

} // namespace

Ref<UIView> ElementSearch::first() {
    const auto shown = shownIn(root_);
    if (shown.empty())
        return numbered(1);
    scrollIntoView(*shown.front());
    Screen::current().layoutIfNeeded();
    return shown.front();
}

Ref<UIView> ElementSearch::numbered(int number) {
    auto index = static_cast<std::size_t>(number - 1);
    auto others = shownIn(root_);
    if (auto* const scroll = scrollViewIn(root_)) {
        const auto places = placesIn(*scroll);
        if (index < places.size())
            return scrolledTo(places[index], *scroll);
        index -= places.size();
        std::erase_if(others, [scroll](const auto& view) { return view->peer().isDescendantOf(*scroll); });
    }
    if (index >= others.size())
        return nullptr;
    scrollIntoView(*others[index]);
    return others[index];
}

bool ElementSearch::matches(const UIView& view) const {
    const auto& peer = view.peer();
    return peer.shownText() == label_ || peer.accessibility().label == label_;
}

void ElementSearch::collect(UIView& view, Views& found) const {
    if (!isShown(view))
        return;
    if (matches(view)) {
        found.push_back(retain(&view));
        return;
    }
    Views within;
    for (const auto& subview : std::vector(view.peer().subviews()))
        collect(*subview, within);
    if (dynamic_cast<const UITableViewCell*>(&view) != nullptr)
        leaveToControls(within);
    found.insert(found.end(), within.begin(), within.end());
}

ElementSearch::Views ElementSearch::shownIn(UIView& view) const {
    Views found;
    collect(view, found);
    return found;
}

std::vector<CGPoint> ElementSearch::placesIn(UIScrollView& scroll) const {
    std::vector<CGPoint> places;
    OffsetKeeper keeper(peerOf<UIScrollViewPeer>(scroll));
    const auto step = std::max(scroll.bounds().size.height / 2, 1.0);
    const auto first = peerOf<UIScrollViewPeer>(scroll).minimumOffset().y;
    const auto last = peerOf<UIScrollViewPeer>(scroll).maximumOffset().y;
    const auto steps = std::lround(std::ceil((last - first) / step));
    for (auto count = 0L; count <= steps; ++count) {
        const auto y = first + static_cast<double>(count) * step;
        keeper.moveTo({keeper.offset().x, std::min(y, last)});
        for (const auto& view : shownIn(scroll)) {
            const auto place = placeOf(*view, scroll);
            if (std::ranges::none_of(places, [place](CGPoint other) { return isNear(place, other); }))
                places.push_back(place);
        }
    }
    std::ranges::sort(places, isBefore);
    return places;
}

Ref<UIView> ElementSearch::viewAt(CGPoint place, UIScrollView& scroll) const {
    for (const auto& view : shownIn(scroll)) {
        if (isNear(placeOf(*view, scroll), place))
            return view;
    }
    return nullptr;
}

Ref<UIView> ElementSearch::scrolledTo(CGPoint place, UIScrollView& scroll) const {
    const auto present = peerOf<UIScrollViewPeer>(scroll).contentOffset();
    const auto middle = place.y - scroll.bounds().size.height / 2;
    const auto [least, greatest] = std::pair(peerOf<UIScrollViewPeer>(scroll).minimumOffset().y,
                                             peerOf<UIScrollViewPeer>(scroll).maximumOffset().y);
    if (!viewAt(place, scroll))
        peerOf<UIScrollViewPeer>(scroll).setContentOffset({present.x, std::clamp(middle, least, greatest)});
    Screen::current().layoutIfNeeded();
    const auto view = viewAt(place, scroll);
    if (view)
        scrollIntoView(*view);
    Screen::current().layoutIfNeeded();
    return view;
}
