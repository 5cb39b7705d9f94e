#include "PixelWork.h"

#include <algorithm>
#include <utility>

void PixelWork::add(const QRegion& region, Step step) {
    if (region.isEmpty())
        return;
    for (const auto& rect : region)
        pieces_.push_back({.pixels = rect, .step = steps_.size()});
    bounds_ |= region.boundingRect();
    steps_.push_back(std::move(step));
}

void PixelWork::finish(QImage& picture) {
    for (auto top = bounds_.top(); top <= bounds_.bottom(); top += rowsAtOnce) {
        const QRect band(bounds_.left(), top, bounds_.width(), rowsAtOnce);
        for (const auto& piece : pieces_) {
            if (const auto pixels = piece.pixels & band; !pixels.isEmpty())
                steps_[piece.step](picture, pixels, {});
        }
    }
    *this = {};
}

void PixelWork::doWithin(const QRect& part, QImage& target) const {
    for (const auto& piece : pieces_) {
        if (const auto pixels = piece.pixels & part; !pixels.isEmpty())
            steps_[piece.step](target, pixels, part.topLeft());
    }
}
