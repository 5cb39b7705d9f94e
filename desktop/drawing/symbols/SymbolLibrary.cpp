#include "symbols/SymbolLibrary.h"

#include "symbols/SymbolShapes.h"

#include <QTransform>
#include <algorithm>
#include <array>

namespace {

/// Symbols that the font has under a name of its own.
struct Alias {
    std::string_view name;
    std::string_view iconName;
};

constexpr std::array aliases{
    Alias{"chevron.backward", "chevron_left"},
    Alias{"chevron.forward", "chevron_right"},
    Alias{"magnifyingglass", "search"},
    Alias{"magnifyingglass.circle", "search_circle"},
    Alias{"magnifyingglass.circle.fill", "search_circle_fill"},
    Alias{"square.and.arrow.down", "square_arrow_down"},
    Alias{"square.and.arrow.down.fill", "square_arrow_down_fill"},
    Alias{"square.and.arrow.down.on.square", "square_arrow_down_on_square"},
    Alias{"square.and.arrow.down.on.square.fill", "square_arrow_down_on_square_fill"},
    Alias{"square.and.arrow.up", "square_arrow_up"},
    Alias{"square.and.arrow.up.fill", "square_arrow_up_fill"},
    Alias{"square.and.arrow.up.on.square", "square_arrow_up_on_square"},
    Alias{"square.and.arrow.up.on.square.fill", "square_arrow_up_on_square_fill"},
};

/// Empty for what no symbol is called.
std::string iconNameOf(std::string_view name) {
    if (name.contains('_'))
        return {};
    const auto* const alias = std::ranges::find(aliases, name, &Alias::name);
    if (alias != aliases.end())
        return std::string(alias->iconName);
    std::string iconName(name);
    std::ranges::replace(iconName, '.', '_');
    return iconName;
}

// In units of the symbols' font.
constexpr double semiboldMargin = 17.5; ///< by which strokes grow on either side
constexpr double signMargin = 40;       ///< by which a badge's sign is heavier, before it is made small

constexpr double signShare = 0.5; ///< of a badge's diameter

/// A disc over a corner of a symbol.
struct Badge {
    std::string_view name;
    std::string_view base;
    std::string_view sign; ///< cut out of the disc; empty for none
    double radius;
    double gap;     ///< to what is left of the base, so that of no tooth only a sliver is
    QPointF center; ///< from the middle of the base
};

constexpr std::array badges{
    Badge{"gear.badge", "gear", "", 190, 78, {370, -370}},
    Badge{"gear.badge.checkmark", "gear", "checkmark", 250, 36, {360, 360}},
    Badge{"gear.badge.xmark", "gear", "xmark", 250, 36, {360, 360}},
};

/// Chevrons of back buttons and of rows that lead on, in either direction of reading.
constexpr std::array<std::string_view, 2> usuallyHeavy{"chevron.left", "chevron.right"};

QPainterPath disc(QPointF center, double radius) {
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    return path;
}

/// The sign as small as it fits a badge in that place.
QPainterPath signIn(const Badge& badge, QPointF center, const QPainterPath& sign) {
    const auto ink = sign.boundingRect();
    const double scale = 2 * badge.radius * signShare / std::max(ink.width(), ink.height());
    QTransform toBadge;
    toBadge.translate(center.x(), center.y());
    toBadge.scale(scale, scale);
    toBadge.translate(-ink.center().x(), -ink.center().y());
    return toBadge.map(sign);
}

/// \param weightMargin by which strokes are heavier than regular ones on either side
QPainterPath composed(const Badge& badge, const SymbolFont& font, double weightMargin) {
    const auto base = font.icon(badge.base).value_or(QPainterPath());
    const auto center = base.boundingRect().center() + badge.center;
    auto mark = disc(center, badge.radius);
    if (const auto sign = font.icon(badge.sign))
        mark = mark.subtracted(signIn(badge, center, grown(*sign, signMargin + weightMargin)));
    auto path = (weightMargin > 0 ? grown(base, weightMargin) : base)
                    .subtracted(disc(center, badge.radius + badge.gap));
    path.addPath(mark);
    return path;
}

bool isFilled(std::string_view name) {
    return name.ends_with(".fill") || name.contains(".fill.");
}

} // namespace

SymbolLibrary& SymbolLibrary::shared() {
    static SymbolLibrary library;
    return library;
}

std::optional<SymbolOutline> SymbolLibrary::symbol(std::string_view name) {
    auto known = known_.find(name);
    if (known == known_.end())
        known = known_.emplace(name, make(name)).first;
    return known->second;
}

bool SymbolLibrary::prepare() {
    const auto* const badge =
        std::ranges::find_if(badges, [this](const Badge& made) { return !known_.contains(made.name); });
    if (badge != badges.end()) {
        static_cast<void>(symbol(badge->name));
        return true;
    }
    return std::ranges::any_of(usuallyHeavy, [this](std::string_view name) {
        const auto known = symbol(name);
        return known && known->prepare(SymbolWeight::Semibold);
    });
}

std::optional<SymbolOutline> SymbolLibrary::make(std::string_view name) const {
    const auto* const badge = std::ranges::find(badges, name, &Badge::name);
    if (badge != badges.end())
        return SymbolOutline(composed(*badge, font_, 0),
                             [this, badge] { return composed(*badge, font_, semiboldMargin); });
    const auto icon = font_.icon(iconNameOf(name));
    if (!icon)
        return std::nullopt;
    return SymbolOutline(*icon, [shape = *icon, filled = isFilled(name)] {
        return filled ? withWiderHoles(shape, semiboldMargin) : grown(shape, semiboldMargin);
    });
}
