#include "BoxBlur.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <vector>

BoxBlur::BoxBlur(double sigma, BlurEdges edges) : edges_(edges) {
    // A window of 2r+1 samples has the variance r(r+1)/3. The share of the outer two makes up for the rest.
    const double variance = sigma * sigma;
    const double radius = std::floor((std::sqrt(12 * variance + 1) - 1) / 2);
    const double lacking = variance - radius * (radius + 1) / 3;
    const double share = lacking * (2 * radius + 1) / (2 * ((radius + 1) * (radius + 1) - variance));
    radius_ = static_cast<std::ptrdiff_t>(radius);
    weight_ = static_cast<float>(1 / (2 * radius + 1 + 2 * share));
    outerWeight_ = static_cast<float>(share) * weight_;
}

void BoxBlur::blurRows(PixelComponents& pixels) const {
    std::vector<float> blurred(pixels.values.size());
    for (std::size_t start = 0; start < blurred.size(); start += pixels.rowLength)
        blurRun(
            {&pixels.values[start], pixels.rowLength / pixels.channels, pixels.channels, &blurred[start]});
    pixels.values.swap(blurred);
}

void BoxBlur::blurColumns(PixelComponents& pixels) const {
    std::vector<float> blurred(pixels.values.size());
    blurRun({pixels.values.data(), pixels.rowCount, pixels.rowLength, blurred.data()});
    pixels.values.swap(blurred);
}

void BoxBlur::blurRun(const Run& run) const {
    const std::vector<float> nothing(run.length);
    const auto at = [&](std::ptrdiff_t index) { return sample(run, index, nothing.data()); };
    auto sum = nothing;
    for (auto index = -radius_; index <= radius_; ++index)
        std::ranges::transform(sum, std::span(at(index), run.length), sum.begin(), std::plus());
    const auto count = static_cast<std::ptrdiff_t>(run.count);
    for (std::ptrdiff_t index = 0; index < count; ++index) {
        const auto* const before = at(index - radius_ - 1);
        const auto* const leaving = at(index - radius_);
        const auto* const coming = at(index + radius_ + 1);
        auto* const blurred = run.blurred + index * static_cast<std::ptrdiff_t>(run.length);
        for (std::size_t component = 0; component < run.length; ++component) {
            const float outer = before[component] + coming[component];
            blurred[component] = sum[component] * weight_ + outer * outerWeight_;
            sum[component] += coming[component] - leaving[component];
        }
    }
}

const float* BoxBlur::sample(const Run& run, std::ptrdiff_t index, const float* nothing) const {
    const auto last = static_cast<std::ptrdiff_t>(run.count) - 1;
    if (edges_ == BlurEdges::Transparent && (index < 0 || index > last))
        return nothing;
    return run.samples + std::clamp<std::ptrdiff_t>(index, 0, last) * static_cast<std::ptrdiff_t>(run.length);
}
