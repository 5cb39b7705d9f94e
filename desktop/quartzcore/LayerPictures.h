#pragma once

#include "PaintList.h"

#include <QImage>
#include <QRegion>
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
        std::shared_ptr<const PaintList> shown; ///< null until there is a picture
        QImage picture;                         ///< of what is shown, ARGB32 premultiplied
        QRegion outdated;                       ///< where the picture is not that
        std::map<int, QImage> smaller;          ///< the same so many times smaller, up to date
        std::uint64_t lastUse = 0;
    };

    /// The picture of a layer, which may be one of what it showed before; it counts as used by this painting.
    [[nodiscard]] Kept& use(std::uint64_t identity);

    /// The same without that. \pre there is one
    [[nodiscard]] const QImage& picture(std::uint64_t identity) const;

    /// A painting is over: drops what was not used for long, and beyond the capacity what this one did not
    /// use, the longest unused first.
    void paintingEnded();

private:
    std::unordered_map<std::uint64_t, Kept> kept_;
    std::uint64_t painting_ = 1;
};
