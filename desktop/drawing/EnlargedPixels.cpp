#include "EnlargedPixels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

namespace {

/// Where a sample of a larger image is between two of a smaller one.
struct Between {
    std::size_t first;
    std::size_t second;
    float share; ///< of the second

    Between(std::size_t index, std::size_t largerCount, std::size_t count) {
        const double position = (static_cast<double>(index) + 0.5) * static_cast<double>(count) /
                                    static_cast<double>(largerCount) -
                                0.5;
        const double clamped = std::clamp(position, 0.0, static_cast<double>(count - 1));
        first = static_cast<std::size_t>(clamped);
        second = std::min(first + 1, count - 1);
        share = static_cast<float>(clamped - static_cast<double>(first));
    }
};

} // namespace

EnlargedPixels::EnlargedPixels(const PixelComponents& pixels, QSize size)
    : channels_(pixels.channels),
      height_(size.height()) {
    /// Rounds what is not negative, where the library's functions would take most of the time.
    constexpr float half = 0.5F;
    const auto width = static_cast<std::size_t>(size.width());
    std::vector<Between> columns;
    columns.reserve(width);
    for (std::size_t x = 0; x < width; ++x)
        columns.emplace_back(x, width, pixels.rowLength / channels_);
    rows_.assign(pixels.rowCount, std::vector<PixelRows::Fine>(width * channels_));
    for (std::size_t y = 0; y < pixels.rowCount; ++y) {
        const auto* const row = &pixels.values[y * pixels.rowLength];
        auto value = rows_[y].begin();
        for (const auto& column : columns) {
            for (std::size_t channel = 0; channel < channels_; ++channel) {
                const float first = row[column.first * channels_ + channel];
                const float second = row[column.second * channels_ + channel];
                const float mixed = first + (second - first) * column.share;
                *value++ = static_cast<PixelRows::Fine>(mixed * PixelRows::fineSteps + half);
            }
        }
    }
}

void EnlargedPixels::copyTo(QImage& target, const QRect& pixels, QPoint corner) const {
    const auto left = static_cast<std::size_t>(pixels.left()) * channels_;
    const auto size = static_cast<std::size_t>(pixels.width()) * channels_;
    const auto place = left + static_cast<std::size_t>(corner.x()) * channels_;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const Between between(static_cast<std::size_t>(y), static_cast<std::size_t>(height_), rows_.size());
        PixelRows::mix(std::span(rows_[between.first]).subspan(left, size),
                       std::span(rows_[between.second]).subspan(left, size),
                       static_cast<int>(std::lround(between.share * PixelRows::fullFineShare)),
                       {target.scanLine(y + corner.y()) + place, size});
    }
}
