#include "LayerPictures.h"

#include "PicturePool.h"

#include <algorithm>

namespace {

/// How much larger a picture may be than one that is made in its memory.
constexpr double mostRoom = 1.125;

} // namespace

LayerPictures::Kept& LayerPictures::use(std::uint64_t identity) {
    auto& kept = kept_[identity];
    kept.lastUse = painting_;
    return kept;
}

const QImage& LayerPictures::picture(std::uint64_t identity) const {
    return kept_.at(identity).picture;
}

QImage LayerPictures::make(QSize size) {
    auto& pool = PicturePool::shared();
    if (!pool.isReadyFor(size))
        dropSpare(size);
    return pool.make(size);
}

/// One of about that size, the longest unused.
void LayerPictures::dropSpare(QSize size) {
    const auto pixels = [](QSize of) { return static_cast<double>(of.width()) * of.height(); };
    const auto needed = pixels(size);
    const auto isSpare = [&](const Kept& kept) {
        const auto has = pixels(kept.picture.size());
        return kept.lastUse + paintingsSpare < painting_ && has >= needed && has <= needed * mostRoom;
    };
    auto spare = kept_.end();
    for (auto entry = kept_.begin(); entry != kept_.end(); ++entry) {
        const auto isFirst = spare == kept_.end() || entry->second.lastUse < spare->second.lastUse;
        if (isFirst && isSpare(entry->second))
            spare = entry;
    }
    if (spare != kept_.end())
        kept_.erase(spare);
}

void LayerPictures::paintingEnded() {
    std::erase_if(kept_,
                  [this](const auto& entry) { return entry.second.lastUse + paintingsUnused < painting_; });
    qsizetype bytes = 0;
    for (const auto& [identity, kept] : kept_)
        bytes += kept.picture.sizeInBytes();
    while (bytes > capacity) {
        const auto oldest =
            std::ranges::min_element(kept_, {}, [](const auto& entry) { return entry.second.lastUse; });
        if (oldest->second.lastUse == painting_)
            break;
        bytes -= oldest->second.picture.sizeInBytes();
        kept_.erase(oldest);
    }
    ++painting_;
}
