#pragma once

#include "PaintList.h"

#include <QImage>
#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>

/// The pictures of the layers that keep one, from one painting to the next. Made by LayerPainter.
class LayerPictures {
public:
    /// Bytes of pictures that are kept, but for those that the last painting showed.
    static constexpr qsizetype capacity = qsizetype{48} << 20;

    /// Paintings in a row that need not use a picture before it is dropped.
    static constexpr std::uint64_t paintingsUnused = 240;

    struct Kept {
        std::shared_ptr<const PaintList> shown; ///< null until it is painted
        QImage picture;                         ///< ARGB32 premultiplied
        std::map<int, QImage> smaller;          ///< the same so many times smaller
        std::uint64_t lastUse = 0;
    };

    /// The picture of a layer, which may be one of what it showed before; it counts as used by this painting.
    [[nodiscard]] Kept& use(std::uint64_t identity);

    /// The same when it is up to date. \pre `use` was called for it in this painting
    [[nodiscard]] const QImage& picture(std::uint64_t identity) const;

    /// That so many times smaller, of the means of its pixels. \param factor 1, 2, 4 and so on
    [[nodiscard]] const QImage& picture(std::uint64_t identity, int factor);

    /// A painting is over: drops what was not used for long, and beyond the capacity what this one did not
    /// use, the longest unused first.
    void paintingEnded();

private:
    std::unordered_map<std::uint64_t, Kept> kept_;
    std::uint64_t painting_ = 1;
};
