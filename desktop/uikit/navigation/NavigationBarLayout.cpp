#include "navigation/NavigationBarLayout.h"

#include "navigation/BackButtonView.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr auto narrowMargin = 16.0;
constexpr auto wideMargin = 20.0;
constexpr auto spacing = 8.0;
constexpr auto titleGap = 8.0;

/// A button around content from `start` on.
CGRect buttonAround(double start, double width, double height) {
    const auto button = std::max(width, NavigationBarPlaces::leastButtonWidth);
    return CGRectMake(start - (button - width) / 2, 0, button, height);
}

/// Distances of contents from their edge of the bar, and where the last one ends.
struct Row {
    std::vector<double> starts;
    double end;
};

Row rowFrom(double edge, const std::vector<double>& widths) {
    Row row{.starts = {}, .end = edge};
    for (std::size_t index = 0; index < widths.size(); ++index) {
        auto start = row.end;
        if (index > 0) {
            const auto apart =
                NavigationBarPlaces::leastButtonWidth - (widths[index - 1] + widths[index]) / 2;
            start += std::max(spacing, apart);
        }
        row.starts.push_back(start);
        row.end = start + widths[index];
    }
    return row;
}

/// From where to where the title may be.
struct Room {
    double left;
    double right;

    [[nodiscard]] double width() const { return std::max(0.0, right - left); }
};

Room roomBetween(const NavigationBarParts& parts, double leftEnd, double rightEnd) {
    const auto clear = [&parts](double end) { return end > parts.margin ? end + titleGap : parts.margin; };
    return {clear(leftEnd), parts.bar.width - clear(rightEnd)};
}

double backEnd(const NavigationBarParts& parts, std::optional<std::size_t> title) {
    if (!parts.hasBackButton)
        return 0;
    return title ? BackButtonView::titleStart + parts.backTitles[*title] : BackButtonView::chevronEnd;
}

CGRect titleIn(const Room& room, const NavigationBarParts& parts) {
    const auto width = std::min(parts.title.width, room.width());
    const auto height = std::min(parts.title.height, parts.bar.height);
    const auto centred = (parts.bar.width - width) / 2;
    const auto wanted = std::clamp(centred, room.left, std::max(room.left, room.right - width));
    const auto onPixel = [&parts](double length) {
        return std::round(length * parts.displayScale) / parts.displayScale;
    };
    return CGRectMake(onPixel(wanted), onPixel((parts.bar.height - height) / 2), width, height);
}

} // namespace

double barMargin(const Traits& traits) {
    return traits.compactWidth ? narrowMargin : wideMargin;
}

NavigationBarPlaces placesFor(const NavigationBarParts& parts) {
    NavigationBarPlaces places;
    const auto right = rowFrom(parts.margin, parts.right);
    const auto rightEnd = parts.right.empty() ? 0 : right.end;
    const auto leftRow = [&parts](std::optional<std::size_t> backTitle) {
        const auto back = backEnd(parts, backTitle);
        return rowFrom(back > 0 ? back + spacing : parts.margin, parts.left);
    };
    const auto leftEnd = [&](std::optional<std::size_t> backTitle) {
        return parts.left.empty() ? backEnd(parts, backTitle) : leftRow(backTitle).end;
    };
    for (std::size_t index = 0; index < parts.backTitles.size() && !places.backTitle; ++index) {
        if (roomBetween(parts, leftEnd(index), rightEnd).width() >= parts.title.width)
            places.backTitle = index;
    }

    if (parts.hasBackButton) {
        const auto width = std::max(backEnd(parts, places.backTitle), BackButtonView::leastWidth);
        places.back = CGRectMake(0, 0, width, parts.bar.height);
    }
    const auto left = leftRow(places.backTitle);
    for (std::size_t index = 0; index < parts.left.size(); ++index)
        places.left.push_back(buttonAround(left.starts[index], parts.left[index], parts.bar.height));
    for (std::size_t index = 0; index < parts.right.size(); ++index) {
        const auto start = parts.bar.width - right.starts[index] - parts.right[index];
        places.right.push_back(buttonAround(start, parts.right[index], parts.bar.height));
    }
    places.title = titleIn(roomBetween(parts, leftEnd(places.backTitle), rightEnd), parts);
    return places;
}
