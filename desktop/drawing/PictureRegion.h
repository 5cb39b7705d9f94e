#pragma once

#include <QtGlobal>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

/// The addresses that large pictures lie at, cut into blocks; what is given back joins its neighbours, so
/// that the memory of one picture serves smaller ones, and that of several a larger one. Memory comes by huge
/// pages where the system has them, as it is first written to. Made and used by PicturePool.
class PictureRegion {
public:
    /// What memory is brought and given back in, in bytes.
    static constexpr std::size_t portion = std::size_t{2} << 20;

    /// \param bytes whole portions; there are none where the system has no room for their addresses
    explicit PictureRegion(std::size_t bytes);
    ~PictureRegion();
    PictureRegion(const PictureRegion&) = delete;
    PictureRegion& operator=(const PictureRegion&) = delete;

    /// A block with any content, in memory that is there already if possible. The address sanitizer notices
    /// who writes beyond it, or after it was given back. \param asked bytes \returns null when there is no
    /// room
    [[nodiscard]] uchar* take(std::size_t asked);

    /// What was taken, with as many bytes.
    void giveBack(const uchar* block, std::size_t bytes);

    /// Whether such a block would be in memory that is there.
    [[nodiscard]] bool isReadyFor(std::size_t bytes) const;

    /// The bytes of memory that are there and not taken.
    [[nodiscard]] std::size_t readyBytes() const;

    /// The same with those that are taken, in whole portions.
    [[nodiscard]] std::size_t bytesThere() const;

    /// Brings the memory of one more portion, where it makes room for the largest pictures. Where more bytes
    /// than that are ready then, as many go back to the system from elsewhere. \returns whether there was one
    bool prepare(std::size_t mostReady);

    /// Gives portions that nothing is taken of back to the system until no more bytes than that are ready.
    void giveToSystem(std::size_t mostReady) { giveToSystem(spansByLength(), mostReady); }

private:
    /// Places from the beginning and lengths in bytes, none next to another.
    using Spans = std::map<std::size_t, std::size_t>;
    using Span = std::pair<std::size_t, std::size_t>;

    /// The shortest first, which suit the fewest pictures.
    [[nodiscard]] std::vector<Span> spansByLength() const;
    /// From these, as they come.
    void giveToSystem(const std::vector<Span>& spans, std::size_t mostReady);
    /// The shortest one that suits; the end when there is none.
    [[nodiscard]] Spans::const_iterator spanFor(std::size_t bytes, bool ready) const;
    [[nodiscard]] bool isThere(std::size_t place, std::size_t bytes) const;
    [[nodiscard]] static std::pair<std::size_t, std::size_t> portionsWithin(const Span& span);

    uchar* addresses_ = nullptr; ///< null when there are none
    std::size_t size_;           ///< of all addresses, in bytes
    uchar* begin_ = nullptr;     ///< of the first portion
    Spans free_;
    std::vector<bool> isThere_; ///< of each portion, whether it has memory
};
