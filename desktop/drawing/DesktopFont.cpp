#include "DesktopFont.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<UIFont>("UIFont");

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
