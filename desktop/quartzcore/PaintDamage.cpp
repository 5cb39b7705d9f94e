#include "PaintDamage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace {

using Items = std::vector<PaintItem>;

/// More rectangles than these cost more than the pixels between them.
constexpr int rectanglesAtMost = 12;

/// Whether it is faded as much, and in the same way: what is painted apart may differ in a last digit.
bool isFadedAlike(const PaintItem& before, const PaintItem& after) {
    const auto isPaintedAlike = !after.isGroup() || before.isBackgroundOnly == after.isBackgroundOnly;
    return isPaintedAlike && before.opacity == after.opacity && before.enclosing == after.enclosing;
}

bool looksAlike(const PaintItem& before, const PaintItem& after) {
    return before.clip == after.clip && before.innerClip == after.innerClip && before.look == after.look;
}

/// The pixels that a change within a layer's own picture touches, which is where it was.
QRegion damageOfInner(const PaintItem& before, const PaintItem& after) {
    if (before.inner == nullptr || after.inner == nullptr)
        return before.inner == after.inner ? QRegion() : QRegion(before.extent) | after.extent;
    if (before.innerPlace != after.innerPlace || before.inner->size() != after.inner->size())
        return QRegion(before.extent) | after.extent;
    const auto damage = damageBetween(*before.inner, *after.inner);
    if (damage.isEmpty())
        return {};
    if (after.isInnerScaled())
        return {after.extent};
    return damage.translated(after.cornerOfInner()) & after.extent;
}

/// The pixels that one layer's change touches.
QRegion damageOf(const PaintItem& before, const PaintItem& after) {
    if (!isFadedAlike(before, after))
        return QRegion(before.wholeExtent) | after.wholeExtent;
    if (!looksAlike(before, after))
        return QRegion(before.extent) | after.extent;
    return damageOfInner(before, after);
}

/// Finds the layers of one list in another one, as long as they come in the same order.
class Matching {
public:
    explicit Matching(const Items& before) : before_(before), isMatched_(before.size()) {
        for (std::size_t index = 0; index < before.size(); ++index)
            indexes_.emplace(before[index].identity, index);
    }

    /// The same layer before, if it was not in front of one that was found already.
    const PaintItem* find(const PaintItem& item) {
        const auto found = indexes_.find(item.identity);
        if (found == indexes_.end() || found->second < next_)
            return nullptr;
        next_ = found->second + 1;
        isMatched_[found->second] = true;
        return &before_[found->second];
    }

    /// What the layers reached that were not found.
    [[nodiscard]] QRegion unmatched() const {
        QRegion region;
        for (std::size_t index = 0; index < before_.size(); ++index) {
            if (!isMatched_[index])
                region |= before_[index].extent;
        }
        return region;
    }

private:
    const Items& before_;
    std::unordered_map<std::uint64_t, std::size_t> indexes_;
    std::vector<bool> isMatched_;
    std::size_t next_ = 0;
};

bool haveSameLayers(const Items& before, const Items& after) {
    return std::ranges::equal(before, after, {}, &PaintItem::identity, &PaintItem::identity);
}

QRegion damageOfSameLayers(const Items& before, const Items& after) {
    QRegion damage;
    for (std::size_t index = 0; index < after.size(); ++index)
        damage |= damageOf(before[index], after[index]);
    return damage;
}

QRegion damageOfOtherLayers(const Items& before, const Items& after) {
    Matching matching(before);
    QRegion damage;
    for (const auto& item : after) {
        const auto* const same = matching.find(item);
        damage |= same != nullptr ? damageOf(*same, item) : QRegion(item.extent);
    }
    return damage | matching.unmatched();
}

/// A blurred picture of what lies behind is made of all of it.
QRegion grownByBackdrops(QRegion damage, const Items& items) {
    for (auto grows = true; grows;) {
        grows = false;
        for (const auto& item : items) {
            if (!item.look.backdrop || !damage.intersects(item.body))
                continue;
            const auto grown = damage | item.body;
            grows = grows || grown != damage;
            damage = grown;
        }
    }
    return damage;
}

} // namespace

QRegion damageBetween(const PaintList& before, const PaintList& after) {
    const auto& old = before.items();
    const auto& now = after.items();
    auto damage = haveSameLayers(old, now) ? damageOfSameLayers(old, now) : damageOfOtherLayers(old, now);
    if (damage.rectCount() > rectanglesAtMost)
        damage = damage.boundingRect();
    return grownByBackdrops(std::move(damage), now);
}
