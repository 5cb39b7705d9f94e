#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <functional>
#include <vector>

/// Work on whole pixels of a picture that is put off, to be done a few rows at a time: what is painted over
/// the same rows finds them in the processor's cache, and rows that are only to be read are never a picture.
class PixelWork {
public:
    /// So many rows of a large picture are in the cache, with what they are made of.
    static constexpr int rowsAtOnce = 32;

    /// Works on some pixels alone. \param target with all of them \param corner of the target; the pixels
    /// are told as they lie in the whole picture
    using Step = std::function<void(QImage& target, const QRect& pixels, QPoint corner)>;

    /// What a step needs has to be there until it is done.
    void add(const QRegion& region, Step step);

    /// Does all of it in the whole picture, and forgets it.
    void finish(QImage& picture);

    /// Does what falls into a part. \param target of at least that part's size, with the same corner
    void doWithin(const QRect& part, QImage& target) const;

private:
    struct Piece {
        QRect pixels;
        std::size_t step = 0;
    };

    std::vector<Step> steps_;
    std::vector<Piece> pieces_; ///< in the order of the steps
    QRect bounds_;
};
