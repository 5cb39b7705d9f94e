#include "ScratchImages.h"

void ScratchImages::setSize(QSize size) {
    if (size_ == size)
        return;
    size_ = size;
    images_.clear();
}

QImage& ScratchImages::take() {
    if (taken_ == images_.size())
        images_.emplace_back(size_, QImage::Format_ARGB32_Premultiplied);
    return images_[taken_++];
}
