#include "PicturePool.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype bytesOfPixel = 4;

std::size_t bytesOf(QSize size) {
    return static_cast<std::size_t>(bytesOfPixel * size.width() * size.height());
}

} // namespace

/// What a picture has of the pool until it ends.
struct PicturePool::Lease {
    std::shared_ptr<PictureRegion> region;
    const uchar* block;
    std::size_t bytes;

    static void end(void* picture) {
        const std::unique_ptr<Lease> lease(static_cast<Lease*>(picture));
        lease->region->giveBack(lease->block, lease->bytes);
        lease->region->giveToSystem(mostReady(*lease->region));
    }
};

std::size_t PicturePool::mostReady(const PictureRegion& region) {
    const auto used = region.bytesThere() - region.readyBytes();
    return std::max(capacity, usual - std::min(usual, used));
}

PicturePool& PicturePool::shared() {
    static PicturePool pool;
    return pool;
}

QImage PicturePool::make(QSize size) {
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    if (size.isEmpty())
        return {size, format};
    const auto bytes = bytesOf(size);
    auto* const block = bytes < smallest ? nullptr : region_->take(bytes);
    if (block == nullptr)
        return {size, format};
    auto lease = std::make_unique<Lease>(region_, block, bytes);
    return {block,  size.width(), size.height(),  bytesOfPixel * size.width(),
            format, Lease::end,   lease.release()};
}

bool PicturePool::isReadyFor(QSize size) const {
    return region_->isReadyFor(bytesOf(size));
}

bool PicturePool::prepare() {
    const auto isReady = region_->isReadyFor(prepared) && allBytes() >= usual;
    return !isReady && region_->prepare(mostReady(*region_));
}
