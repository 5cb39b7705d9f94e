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
    static constexpr qsizetype capacity = qsizetype{24} << 20;

    /// Paintings in a row that need not use a picture before it is dropped.
    static constexpr std::uint64_t paintingsUnused = 240;

    /// From when on it gives its memory to another that is needed.
    static constexpr std::uint64_t paintingsSpare = 60;

    /// A picture so many times smaller than it is kept.
    struct Smaller {
        QImage picture;
        QRegion outdated; ///< where it is not what is shown, in its pixels
    };

    struct Kept {
        std::shared_ptr<const PaintList> shown; ///< null until there is a picture
        QImage picture;                         ///< of what is shown, ARGB32 premultiplied; may be null
        QRegion outdated;                       ///< where the picture is not that
        std::map<int, Smaller> smaller;         ///< by how many times smaller they are
        std::uint64_t lastUse = 0;
        std::uint64_t lastChange = 0; ///< the painting that first showed something else
    };

    /// The picture of a layer, which may be one of what it showed before; it counts as used by this painting.
    [[nodiscard]] Kept& use(std::uint64_t identity);

    /// The same without that. \pre there is one
    [[nodiscard]] const QImage& picture(std::uint64_t identity) const;

    /// A picture whose pixels may be anything, in memory that is there already if there is some: of one that
    /// ended, or of one that has not been used for a while, which then is no more.
    [[nodiscard]] QImage make(QSize size);

    /// A painting is over: drops what was not used for long, and beyond the capacity what this one did not
    /// use, the longest unused first.
    void paintingEnded();

private:
    void dropSpare(QSize size);

    std::unordered_map<std::uint64_t, Kept> kept_;
    std::uint64_t painting_ = 1;
};
