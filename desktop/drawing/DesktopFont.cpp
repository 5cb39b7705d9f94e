#include "DesktopFont.h"

#include "ObjectiveC/Class.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const Class classObject = Class::define<UIFont>("UIFont");

/// A weight as fonts are asked for, and the face's that it stands for.
struct NamedWeight {
    double number;
    FontWeight weight;
};

constexpr std::array weights{NamedWeight{UIFontWeightLight, FontWeight::Light},
                             NamedWeight{0, FontWeight::Regular},
                             NamedWeight{UIFontWeightMedium, FontWeight::Medium},
                             NamedWeight{0.3, FontWeight::Semibold}, NamedWeight{0.4, FontWeight::Bold}};

FontWeight nearestWeight(double number) {
    return std::ranges::min(weights, {},
                            [number](const NamedWeight& named) { return std::abs(named.number - number); })
        .weight;
}

} // namespace

Ref<UIFont> DesktopFont::font(double size, FontWeight weight) {
    return make<DesktopFont>(FontStyle{.size = size, .weight = weight});
}

FontStyle DesktopFont::styleOf(const Ref<UIFont>& font) {
    const auto* const known = dynamic_cast<const DesktopFont*>(font.get());
    return known != nullptr ? known->style_ : FontStyle();
}

Ref<UIFont> UIFont::systemFontOfSize(double size) {
    return DesktopFont::font(size);
}

Ref<UIFont> UIFont::systemFontOfSize(double size, double weight) {
    return DesktopFont::font(size, nearestWeight(weight));
}

Ref<UIFont> UIFont::boldSystemFontOfSize(double size) {
    return DesktopFont::font(size, FontWeight::Bold);
}
