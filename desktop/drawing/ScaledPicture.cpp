#include "ScaledPicture.h"

#include "PixelRows.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

/// Where a pixel is between two of another row or column of them.
struct Between {
    int first; ///< the second is the next
    int share; ///< of the second

    /// \param place the middle of the pixel, with the other row's first edge at 0
    Between(double place, int count) {
        const auto last = std::max(0, count - 2);
        const auto position = std::clamp(place - 0.5, 0.0, static_cast<double>(count - 1));
        first = std::min(static_cast<int>(position), last);
        share = static_cast<int>(std::lround((position - first) * PixelRows::fullShare));
    }
};

} // namespace

void ScaledPicture::prepareColumns(const QRect& pixels) {
    if (columns_.left == pixels.left() && columns_.count == pixels.width())
        return;
    const auto perPixel = size_.width() / place_.width();
    const auto betweenOf = [&](int x) {
        return Between((x + 0.5 - place_.left()) * perPixel, size_.width());
    };
    const auto first = betweenOf(pixels.left()).first;
    const auto end = std::min(betweenOf(pixels.right()).first + 2, size_.width());
    columns_ = {.left = pixels.left(),
                .count = pixels.width(),
                .firstNeeded = first,
                .neededCount = end - first,
                .runs = {},
                .shares = {}};
    auto& [left, count, firstNeeded, neededCount, runs, shares] = columns_;
    for (int x = pixels.left(); x <= pixels.right(); ++x) {
        const auto between = betweenOf(x);
        const auto from = static_cast<std::size_t>(between.first - first) * PixelRows::pixelSize;
        if (runs.empty() || runs.back().from + runs.back().size != from)
            runs.push_back({.from = from, .to = shares.size(), .size = 0});
        runs.back().size += PixelRows::pixelSize;
        shares.insert(shares.end(), PixelRows::pixelSize, static_cast<std::uint8_t>(between.share));
    }
    mixed_.resize(static_cast<std::size_t>(end - first + 1) * PixelRows::pixelSize);
}

void ScaledPicture::copyTo(QImage& target, const QRect& pixels, QPoint corner) {
    prepareColumns(pixels);
    const auto perPixel = size_.height() / place_.height();
    const auto needed = static_cast<std::size_t>(columns_.neededCount) * PixelRows::pixelSize;
    const auto left = static_cast<std::size_t>(pixels.left() - corner.x()) * PixelRows::pixelSize;
    const std::span mixed(mixed_);
    auto* row = target.scanLine(pixels.top() - corner.y()) + left;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const Between rows((y + 0.5 - place_.top()) * perPixel, size_.height());
        const auto next = std::min(rows.first + 1, size_.height() - 1);
        const auto first = picture_.row(rows.first, columns_.firstNeeded, columns_.neededCount);
        const auto second = picture_.row(next, columns_.firstNeeded, columns_.neededCount);
        PixelRows::mix(first, second, rows.share, mixed.first(needed));
        const std::span out(row, columns_.shares.size());
        row += target.bytesPerLine();
        for (const auto& run : columns_.runs)
            PixelRows::mixWithNext(mixed.subspan(run.from, run.size + PixelRows::pixelSize),
                                   std::span(columns_.shares).subspan(run.to, run.size),
                                   out.subspan(run.to, run.size));
    }
}
