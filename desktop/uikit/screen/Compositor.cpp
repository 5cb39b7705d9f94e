#include "screen/Compositor.h"

#include "PaintDamage.h"
#include "PicturePool.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"

#include <utility>
#include <vector>

namespace {

PaintList paintListOf(const Screen& screen) {
    std::vector<const CALayer*> roots;
    for (const auto& window : screen.windows())
        roots.push_back(&window->layer());
    return {roots, screen.bounds().size, screen.traits().displayScale};
}

} // namespace

const QImage& Compositor::render() {
    screen_.layoutIfNeeded();
    screen_.firstResponder().followTime();
    auto now = paintListOf(screen_);
    if (picture_.size() == now.size()) {
        lastDamage_ = damageBetween(shown_, now);
    } else {
        picture_ = PicturePool::shared().make(now.size());
        lastDamage_ = picture_.rect();
    }
    if (!lastDamage_.isEmpty())
        painter_.paint(now, lastDamage_, picture_);
    shown_ = std::move(now);
    return picture_;
}
