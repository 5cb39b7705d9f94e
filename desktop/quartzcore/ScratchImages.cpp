#include "ScratchImages.h"

void ScratchImages::makeRoom(QSize size) {
    const auto needed = size_.expandedTo(size);
    if (size_ == needed)
        return;
    size_ = needed;
    images_.clear();
}

QImage& ScratchImages::take() {
    if (taken_ == images_.size())
        images_.emplace_back(size_, QImage::Format_ARGB32_Premultiplied);
    return images_[taken_++];
}
