#include "PicturePool.h"

#include <sys/mman.h>

#include <algorithm>
#include <bit>
#include <iterator>
#include <ranges>
#include <utility>

namespace {

constexpr qsizetype bytesOfPixel = 4;

std::size_t bytesOf(QSize size) {
    return static_cast<std::size_t>(bytesOfPixel * size.width() * size.height());
}

/// What is made for a picture, so that it suits those that are a little larger, too.
std::size_t sizeWithRoom(std::size_t size) {
    constexpr std::size_t parts = 8; // of the power of two below
    const auto part = std::max<std::size_t>(std::bit_floor(size) / parts, 1);
    return (size / part + 1) * part;
}

/// Null when there is none.
uchar* newMemory(std::size_t size) {
    auto* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<uchar*>(memory);
}

} // namespace

/// Memory of the process, which it owns.
class PicturePool::Block {
public:
    Block() = default;

    explicit Block(std::size_t size) : memory_(newMemory(size)), size_(memory_ != nullptr ? size : 0) {}

    ~Block() {
        if (memory_ != nullptr)
            munmap(memory_, size_);
    }

    Block(Block&& other) noexcept
        : memory_(std::exchange(other.memory_, nullptr)),
          size_(std::exchange(other.size_, 0)) {}

    Block& operator=(Block&& other) noexcept {
        std::swap(memory_, other.memory_);
        std::swap(size_, other.size_);
        return *this;
    }

    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    /// Null when there is none.
    [[nodiscard]] uchar* memory() const { return memory_; }

    [[nodiscard]] std::size_t size() const { return size_; }

    /// Without leaving much of it unused.
    [[nodiscard]] bool suits(std::size_t size) const {
        return size_ >= size && size_ <= sizeWithRoom(sizeWithRoom(size));
    }

private:
    uchar* memory_ = nullptr;
    std::size_t size_ = 0; ///< in bytes
};

/// What no picture uses.
struct PicturePool::Kept {
    std::vector<Block> blocks; ///< the longest unused first

    [[nodiscard]] std::size_t bytes() const {
        std::size_t bytes = 0;
        for (const auto& block : blocks)
            bytes += block.size();
        return bytes;
    }

    void keep(Block block) {
        blocks.push_back(std::move(block));
        while (bytes() > capacity)
            blocks.erase(blocks.begin());
    }
};

/// What a picture has of the pool until it ends.
struct PicturePool::Lease {
    std::weak_ptr<Kept> kept;
    Block block;

    static void end(void* picture) {
        const std::unique_ptr<Lease> lease(static_cast<Lease*>(picture));
        if (const auto kept = lease->kept.lock())
            kept->keep(std::move(lease->block));
    }
};

PicturePool& PicturePool::shared() {
    static PicturePool pool;
    return pool;
}

PicturePool::PicturePool() : kept_(std::make_shared<Kept>()) {}

PicturePool::~PicturePool() = default;

QImage PicturePool::make(QSize size) {
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    if (size.isEmpty())
        return {size, format};
    const auto bytes = bytesOf(size);
    auto block = bytes < smallest ? Block() : blockFor(bytes);
    if (block.memory() == nullptr)
        return {size, format};
    auto lease = std::make_unique<Lease>(kept_, std::move(block));
    auto* const memory = lease->block.memory();
    return {memory, size.width(), size.height(),  bytesOfPixel * size.width(),
            format, Lease::end,   lease.release()};
}

bool PicturePool::isReadyFor(QSize size) const {
    return std::ranges::any_of(kept_->blocks,
                               [bytes = bytesOf(size)](const auto& block) { return block.suits(bytes); });
}

PicturePool::Block PicturePool::blockFor(std::size_t size) {
    auto& blocks = kept_->blocks;
    const auto last = std::ranges::find_if(std::views::reverse(blocks),
                                           [size](const Block& block) { return block.suits(size); });
    if (last == blocks.rend())
        return Block(sizeWithRoom(size));
    auto block = std::move(*last);
    blocks.erase(std::prev(last.base()));
    return block;
}

std::size_t PicturePool::keptBytes() const {
    return kept_->bytes();
}
