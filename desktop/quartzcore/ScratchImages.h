#pragma once

#include <QImage>
#include <cstddef>
#include <memory>
#include <vector>

/// Pictures that are needed for a while within a painting. Keeps them for the next one.
class ScratchImages {
public:
    /// A picture of that size or larger with any content, for as long as `release` has not been called as
    /// often.
    [[nodiscard]] QImage& take(QSize size);

    /// Gives back the picture that was taken last.
    void release() { --taken_; }

private:
    std::vector<std::unique_ptr<QImage>> images_; ///< which stay where they are
    std::size_t taken_ = 0;
};
