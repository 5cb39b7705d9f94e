#pragma once

#include "GaussianBlur.h"
#include "PixelComponents.h"

#include <cstddef>

/// A running mean along rows or columns. Its window has a whole number of samples and a share of the next one
/// on either side, so that it has any variance. Three of them in a row come close to a Gaussian.
class BoxBlur {
public:
    /// \param sigma the standard deviation of one pass, in pixels
    BoxBlur(double sigma, BlurEdges edges);

    void blurRows(PixelComponents& pixels) const;
    void blurColumns(PixelComponents& pixels) const;

private:
    /// Samples that follow each other, each some components long.
    struct Run {
        const float* samples;
        std::size_t count;
        std::size_t length; ///< of a sample
        float* blurred;
    };

    void blurRun(const Run& run) const;

    /// \param nothing the sample beyond transparent edges
    [[nodiscard]] const float* sample(const Run& run, std::ptrdiff_t index, const float* nothing) const;

    std::ptrdiff_t radius_; ///< whole samples on either side of the middle
    float weight_;          ///< of each whole sample
    float outerWeight_;     ///< of the two samples beyond
    BlurEdges edges_;
};
