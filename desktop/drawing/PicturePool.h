#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <memory>
#include <vector>

/// The memory of large pictures, which goes from those that end to those that are made. Memory that is new
/// to the process is dear: it comes page by page, each of them cleared, as the first picture in it is
/// painted. One for the process; used by the thread of the application alone.
class PicturePool {
public:
    /// Bytes that are kept while no picture uses them.
    static constexpr std::size_t capacity = std::size_t{36} << 20;

    /// Pictures of fewer bytes are left to the allocator.
    static constexpr std::size_t smallest = std::size_t{128} << 10;

    [[nodiscard]] static PicturePool& shared();

    /// A picture of that size, ARGB32 premultiplied, whose pixels may be anything. It may outlive the pool.
    [[nodiscard]] QImage make(QSize size);

    /// Whether a picture of that size would have memory that was one's before.
    [[nodiscard]] bool isReadyFor(QSize size) const;

    /// How many bytes no picture uses.
    [[nodiscard]] std::size_t keptBytes() const;

    PicturePool();
    ~PicturePool();
    PicturePool(const PicturePool&) = delete;
    PicturePool& operator=(const PicturePool&) = delete;

private:
    class Block;
    struct Kept;
    struct Lease;

    [[nodiscard]] Block blockFor(std::size_t size);

    std::shared_ptr<Kept> kept_;
};
