#pragma once

#include <QImage>
#include <cstddef>
#include <deque>

/// Pictures of one size that are needed for a while within a painting. Keeps them for the next one.
class ScratchImages {
public:
    /// From here on the pictures are that large, or larger. \pre none is taken
    void makeRoom(QSize size);

    /// A picture with any content, for as long as `release` has not been called as often.
    [[nodiscard]] QImage& take();

    /// Gives back the picture that was taken last.
    void release() { --taken_; }

private:
    QSize size_;
    std::deque<QImage> images_;
    std::size_t taken_ = 0;
};
