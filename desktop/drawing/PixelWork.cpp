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
        for (const auto& piece : pieces_) {
            const auto first = std::max(top, piece.pixels.top());
            const auto last = std::min(top + rowsAtOnce - 1, piece.pixels.bottom());
            if (first <= last)
                steps_[piece.step](picture,
                                   {piece.pixels.left(), first, piece.pixels.width(), last - first + 1}, {});
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
