#include "Compositor.h"

#include "PaintDamage.h"
#include "Screen.h"

#include <utility>

const QImage& Compositor::render() {
    screen_.layoutIfNeeded();
    screen_.firstResponder().followTime();
    PaintList now(screen_);
    if (picture_.size() == now.size()) {
        lastDamage_ = damageBetween(shown_, now);
    } else {
        picture_ = QImage(now.size(), QImage::Format_ARGB32_Premultiplied);
        lastDamage_ = picture_.rect();
    }
    if (!lastDamage_.isEmpty())
        painter_.paint(now, lastDamage_, picture_);
    shown_ = std::move(now);
    return picture_;
}
