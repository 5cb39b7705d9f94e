#include "ScaledPicture.h"

#include "PixelRows.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Where a pixel is between two of another row or column of them.
struct Between {
    std::size_t first; ///< the second is the next
    int share;         ///< of the second

    /// \param place the middle of the pixel, with the other row's first edge at 0
    Between(double place, int count) {
        const auto last = std::max(0, count - 2);
        const auto position = std::clamp(place - 0.5, 0.0, static_cast<double>(count - 1));
        const auto whole = std::min(static_cast<int>(position), last);
        first = static_cast<std::size_t>(whole);
        share = static_cast<int>(std::lround((position - whole) * PixelRows::fullShare));
    }
};

std::span<const std::uint8_t> row(const QImage& image, std::size_t y) {
    const auto inside = std::min(static_cast<int>(y), image.height() - 1);
    return {image.constScanLine(inside), static_cast<std::size_t>(image.width()) * PixelRows::pixelSize};
}

} // namespace

ScaledPicture::Columns ScaledPicture::columnsOf(const QRect& pixels) const {
    Columns columns;
    const auto perPixel = picture_.width() / place_.width();
    for (int x = pixels.left(); x <= pixels.right(); ++x) {
        const Between between((x + 0.5 - place_.left()) * perPixel, picture_.width());
        const auto from = between.first * PixelRows::pixelSize;
        const auto to = columns.shares.size();
        auto& runs = columns.runs;
        if (runs.empty() || runs.back().from + runs.back().size != from)
            runs.push_back({.from = from, .to = to, .size = 0});
        runs.back().size += PixelRows::pixelSize;
        columns.shares.insert(columns.shares.end(), PixelRows::pixelSize,
                              static_cast<std::uint8_t>(between.share));
    }
    return columns;
}

void ScaledPicture::copyTo(QImage& target, const QRect& pixels, QPoint corner) const {
    const auto columns = columnsOf(pixels);
    const auto perPixel = picture_.height() / place_.height();
    const auto& last = columns.runs.back();
    const auto first = columns.runs.front().from;
    const auto width = static_cast<std::size_t>(picture_.width()) * PixelRows::pixelSize;
    const auto needed = std::min(last.from + last.size + PixelRows::pixelSize, width) - first;
    Bytes mixed(needed + PixelRows::pixelSize);
    const auto left = static_cast<std::size_t>(pixels.left() - corner.x()) * PixelRows::pixelSize;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const Between rows((y + 0.5 - place_.top()) * perPixel, picture_.height());
        PixelRows::mix(row(picture_, rows.first).subspan(first, needed),
                       row(picture_, rows.first + 1).subspan(first, needed), rows.share,
                       std::span(mixed).first(needed));
        const std::span out(target.scanLine(y - corner.y()) + left, columns.shares.size());
        for (const auto& run : columns.runs)
            PixelRows::mixWithNext(
                std::span(mixed).subspan(run.from - first, run.size + PixelRows::pixelSize),
                std::span(columns.shares).subspan(run.to, run.size), out.subspan(run.to, run.size));
    }
}
