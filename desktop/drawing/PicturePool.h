#pragma once

#include "PictureRegion.h"

#include <QImage>
#include <QSize>
#include <cstddef>
#include <memory>

/// The memory of large pictures, which goes from those that end to those that are made. Memory that is new
/// to the process is dear: each page of it is cleared, as the first picture in it is painted. So some is
/// prepared while nothing moves. One for the process; used by the thread of the application alone.
class PicturePool {
public:
    /// Bytes that are kept while no picture uses them.
    static constexpr std::size_t capacity = std::size_t{30} << 20;

    /// Bytes that are prepared in one piece: a page's picture with its rows'.
    static constexpr std::size_t prepared = std::size_t{24} << 20;

    /// Bytes that are prepared and kept together with those that pictures use, whatever is left over: what
    /// it comes to before long in any case.
    static constexpr std::size_t usual = std::size_t{72} << 20;

    /// Pictures of fewer bytes are left to the allocator.
    static constexpr std::size_t smallest = std::size_t{128} << 10;

    [[nodiscard]] static PicturePool& shared();

    /// A picture of that size, ARGB32 premultiplied, whose pixels may be anything. It may outlive the pool.
    [[nodiscard]] QImage make(QSize size);

    /// Whether a picture of that size would have memory that is there already.
    [[nodiscard]] bool isReadyFor(QSize size) const;

    /// How many bytes no picture uses.
    [[nodiscard]] std::size_t keptBytes() const { return region_->readyBytes(); }

    /// How many there are with those that pictures use.
    [[nodiscard]] std::size_t allBytes() const { return region_->bytesThere(); }

    /// Prepares a little of what is not there yet, within about a millisecond. \returns whether there is
    /// more to be done
    bool prepare();

private:
    struct Lease;

    /// How many bytes that no picture uses may stay.
    [[nodiscard]] static std::size_t mostReady(const PictureRegion& region);

    /// Bytes; more than any screen's pictures take. What finds no room there is left to the allocator.
    static constexpr std::size_t addresses = std::size_t{512} << 20;

    std::shared_ptr<PictureRegion> region_ = std::make_shared<PictureRegion>(addresses);
};
