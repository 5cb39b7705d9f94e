#include "PictureRegion.h"

#include <sys/mman.h>

#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace {

constexpr std::size_t page = 4096; // bytes

std::size_t wholePages(std::size_t bytes) {
    return (bytes + page - 1) / page * page;
}

} // namespace

PictureRegion::PictureRegion(std::size_t bytes) : size_(bytes + portion) {
    constexpr auto kind = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
    auto* addresses = mmap(nullptr, size_, PROT_READ | PROT_WRITE, kind, -1, 0);
    if (addresses == MAP_FAILED)
        return;
    addresses_ = static_cast<uchar*>(addresses);
    auto room = size_;
    begin_ = static_cast<uchar*>(std::align(portion, bytes, addresses, room));
    madvise(begin_, bytes, MADV_HUGEPAGE); // without which all works as well, more slowly
    free_.emplace(0, bytes);
    isThere_.resize(bytes / portion);
}

PictureRegion::~PictureRegion() {
    if (addresses_ != nullptr)
        munmap(addresses_, size_);
}

uchar* PictureRegion::take(std::size_t asked) {
    const auto bytes = wholePages(asked);
    auto span = spanFor(bytes, true);
    if (span == free_.end())
        span = spanFor(bytes, false);
    if (span == free_.end())
        return nullptr;
    const auto [place, length] = *span;
    free_.erase(span);
    if (length > bytes)
        free_.emplace(place + bytes, length - bytes);
    for (auto index = place / portion; index * portion < place + bytes; ++index)
        isThere_[index] = true;
    // As the allocator would, where the address sanitizer watches.
    ASAN_UNPOISON_MEMORY_REGION(begin_ + place, asked);
    ASAN_POISON_MEMORY_REGION(begin_ + place + asked, bytes - asked);
    return begin_ + place;
}

void PictureRegion::giveBack(const uchar* block, std::size_t bytes) {
    auto place = static_cast<std::size_t>(block - begin_);
    auto length = wholePages(bytes);
    ASAN_POISON_MEMORY_REGION(block, length);
    auto next = free_.upper_bound(place);
    if (next != free_.end() && next->first == place + length) {
        length += next->second;
        next = free_.erase(next);
    }
    if (next != free_.begin()) {
        const auto previous = std::prev(next);
        if (previous->first + previous->second == place) {
            place = previous->first;
            length += previous->second;
        }
    }
    free_[place] = length;
}

bool PictureRegion::isReadyFor(std::size_t bytes) const {
    return spanFor(wholePages(bytes), true) != free_.end();
}

std::size_t PictureRegion::readyBytes() const {
    std::size_t bytes = 0;
    for (const auto& [place, length] : free_) {
        const auto end = place + length;
        for (auto index = place / portion; index * portion < end; ++index) {
            if (isThere_[index])
                bytes += std::min(end, (index + 1) * portion) - std::max(place, index * portion);
        }
    }
    return bytes;
}

std::size_t PictureRegion::bytesThere() const {
    return static_cast<std::size_t>(std::ranges::count(isThere_, true)) * portion;
}

bool PictureRegion::prepare(std::size_t mostReady) {
    auto spans = spansByLength();
    if (spans.empty())
        return false;
    const auto [first, end] = portionsWithin(spans.back());
    spans.pop_back();
    for (auto index = first; index < end; ++index) {
        if (isThere_[index])
            continue;
        madvise(begin_ + index * portion, portion, MADV_POPULATE_WRITE); // older systems bring it later
        isThere_[index] = true;
        giveToSystem(spans, mostReady);
        return true;
    }
    return false;
}

std::vector<PictureRegion::Span> PictureRegion::spansByLength() const {
    std::vector<Span> spans(free_.begin(), free_.end());
    std::ranges::sort(spans, {}, &Span::second);
    return spans;
}

void PictureRegion::giveToSystem(const std::vector<Span>& spans, std::size_t mostReady) {
    auto ready = readyBytes();
    for (const auto& span : spans) {
        const auto [first, end] = portionsWithin(span);
        for (auto index = end; index-- > first && ready > mostReady;) {
            if (!isThere_[index])
                continue;
            madvise(begin_ + index * portion, portion, MADV_DONTNEED);
            isThere_[index] = false;
            ready -= portion;
        }
    }
}

/// The first one that is wholly within a span, and the one after the last.
std::pair<std::size_t, std::size_t> PictureRegion::portionsWithin(const Span& span) {
    const auto [place, length] = span;
    const auto first = (place + portion - 1) / portion;
    return {first, std::max(first, (place + length) / portion)};
}

PictureRegion::Spans::const_iterator PictureRegion::spanFor(std::size_t bytes, bool ready) const {
    auto best = free_.end();
    for (auto span = free_.begin(); span != free_.end(); ++span) {
        const auto suits = span->second >= bytes && (!ready || isThere(span->first, bytes));
        if (suits && (best == free_.end() || span->second < best->second))
            best = span;
    }
    return best;
}

bool PictureRegion::isThere(std::size_t place, std::size_t bytes) const {
    for (auto index = place / portion; index * portion < place + bytes; ++index) {
        if (!isThere_[index])
            return false;
    }
    return true;
}
