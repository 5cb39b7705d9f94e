#include "LayerPictures.h"

#include <algorithm>

LayerPictures::Kept& LayerPictures::use(std::uint64_t identity) {
    auto& kept = kept_[identity];
    kept.lastUse = painting_;
    return kept;
}

const QImage& LayerPictures::picture(std::uint64_t identity) const {
    return kept_.at(identity).picture;
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
