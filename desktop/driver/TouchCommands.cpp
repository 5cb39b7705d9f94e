#include "TouchCommands.h"

#include "ElementSearch.h"
#include "JsonValues.h"
#include "NumberText.h"
#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "accessibility/AccessibilityElement.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "scrolling/UIScrollViewPeer.h"
#include "views/UIViewPeer.h"

#include <QJsonObject>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct PhaseName {
    std::string_view name;
    TouchPhase phase;
};

constexpr std::array phaseNames{
    PhaseName{"down", TouchPhase::Began},
    PhaseName{"move", TouchPhase::Moved},
    PhaseName{"up", TouchPhase::Ended},
    PhaseName{"cancel", TouchPhase::Cancelled},
};

constexpr double farthest = 100'000; // points from the screen's corner

std::optional<double> coordinate(const std::string& text) {
    const auto number = numberFromText(text);
    return number && std::abs(*number) <= farthest ? number : std::nullopt;
}

Answer touch(TouchDispatcher& touches, const CommandTable::Arguments& arguments) {
    const auto* const phase = std::ranges::find(phaseNames, arguments[0].text, &PhaseName::name);
    const auto x = coordinate(arguments[1].text);
    const auto y = coordinate(arguments[2].text);
    if (phase == phaseNames.end())
        return std::unexpected("a touch goes down, move, up or cancel");
    if (!x || !y)
        return std::unexpected("X and Y are numbers of points");
    if (phase->phase != TouchPhase::Began && !touches.isTouching())
        return std::unexpected("no finger is down");
    Screen::current().layoutIfNeeded();
    touches.touch(phase->phase, {*x, *y});
    return QJsonObject();
}

/// The N of "#N"; 0 for anything else.
int numberOf(const CommandLine::Word& word) {
    return !word.quoted && word.text.starts_with('#') ? countFromText(word.text.substr(1)).value_or(0) : 0;
}

Answer tapOn(UIView& view, TouchDispatcher& touches) {
    const auto kept = retain(&view);
    const auto frame = view.peer().convertToScreen(view.bounds());
    const CGPoint middle{CGRectGetMidX(frame), CGRectGetMidY(frame)};
    QJsonObject answer{{"class", jsonOfText(view.isa().name())},
                       {"frame", jsonOf(view.frame())},
                       {"screenFrame", jsonOf(frame)}};
    touches.touch(TouchPhase::Began, middle);
    touches.touch(TouchPhase::Ended, middle);
    return answer;
}

Ref<UIView> found(UIView& root, const std::string& label, std::optional<int> number) {
    ElementSearch search(root, label);
    return number ? search.numbered(*number) : search.first();
}

Answer tap(TouchDispatcher& touches, const CommandTable::Arguments& arguments) {
    const auto number = arguments.size() > 1 ? std::optional(numberOf(arguments[1])) : std::nullopt;
    if (arguments[0].text.empty() || number == 0)
        return std::unexpected("usage: tap LABEL [#N], N from 1 on; a LABEL with spaces stands in quotes");
    Screen::current().layoutIfNeeded();
    auto* const root = viewInFront();
    const auto view = root != nullptr ? found(*root, arguments[0].text, number) : nullptr;
    if (!view)
        return std::unexpected("there is no such element on the screen");
    return tapOn(*view, touches);
}

/// Why what is presented on top, if anything, cannot be drawn down; empty when it can.
std::string obstacleToDrawing(const Presented* presented) {
    const auto details = presented != nullptr ? presented->details() : std::nullopt;
    if (details && details->style == "popover")
        return "a popover is presented: it is no sheet, a touch beside it takes it away";
    const auto isCard = details && (details->style == "pageSheet" || details->style == "formSheet");
    return isCard ? "" : "no sheet is presented";
}

/// A finger would scroll back first what is scrolled where it comes down.
void scrollToTopAt(CGPoint place) {
    for (auto* view = Screen::current().hitTest(place); view != nullptr; view = view->peer().superview()) {
        auto* const scroll = dynamic_cast<UIScrollView*>(view);
        if (scroll == nullptr)
            continue;
        auto& peer = peerOf<UIScrollViewPeer>(*scroll);
        peer.setContentOffset({peer.contentOffset().x, peer.minimumOffset().y});
    }
    Screen::current().layoutIfNeeded();
}

/// Draws the sheet from its upper edge to the screen's lower one.
Answer swipeDown(TouchDispatcher& touches) {
    constexpr double grip = 16; // points below the upper edge
    constexpr auto steps = 10;
    Screen::current().layoutIfNeeded();
    const auto* const sheet = Screen::current().presentations().top();
    if (auto obstacle = obstacleToDrawing(sheet); !obstacle.empty())
        return std::unexpected(std::move(obstacle));
    const auto& card = sheet->shownView();
    const auto frame = card.peer().convertToScreen(card.bounds());
    const CGPoint from{CGRectGetMidX(frame), frame.origin.y + grip};
    const auto way = CGRectGetMaxY(Screen::current().bounds()) - from.y;
    scrollToTopAt(from);
    touches.touch(TouchPhase::Began, from);
    for (auto step = 1; step <= steps; ++step)
        touches.touch(TouchPhase::Moved, {from.x, from.y + way * step / steps});
    touches.touch(TouchPhase::Ended, {from.x, from.y + way});
    const auto left = Screen::current().presentations().all();
    return QJsonObject{{"dismissed", std::ranges::find(left, sheet) == left.end()}};
}

} // namespace

void addTouchCommands(CommandTable& table, TouchDispatcher& touches) {
    table.add({.usage = "tap LABEL [#N]", .fewest = 1, .most = 2, .run = [&touches](const auto& arguments) {
                   return tap(touches, arguments);
               }});
    table.add({.usage = "swipe-down", .run = [&touches](const auto&) { return swipeDown(touches); }});
    table.add({.usage = "touch down|move|up|cancel X Y",
               .fewest = 3,
               .most = 3,
               .run = [&touches](const auto& arguments) { return touch(touches, arguments); }});
}
