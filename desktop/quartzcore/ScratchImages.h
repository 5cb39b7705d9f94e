#pragma once

#include <QImage>
#include <cstddef>
#include <deque>

/// Pictures that are needed for a while within a painting. Keeps them for the next one.
class ScratchImages {
public:
    /// A picture of that size or larger with any content, for as long as `release` has not been called as
    /// often.
    [[nodiscard]] QImage& take(QSize size);

    /// Gives back the picture that was taken last.
    void release() { --taken_; }

private:
    std::deque<QImage> images_;
    std::size_t taken_ = 0;
};
