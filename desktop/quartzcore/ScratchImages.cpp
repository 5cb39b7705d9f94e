#include "ScratchImages.h"

#include "PicturePool.h"

QImage& ScratchImages::take(QSize size) {
    if (taken_ == images_.size())
        images_.push_back(std::make_unique<QImage>());
    auto& image = *images_[taken_++];
    const auto needed = image.size().expandedTo(size);
    if (image.size() != needed)
        image = PicturePool::shared().make(needed);
    return image;
}
