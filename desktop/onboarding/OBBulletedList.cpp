#include "OBBulletedList.h"

#include "ObjectiveC/Class.h"

namespace {

const Class classObject = Class::define<OBBulletedList, UIView>("OBBulletedList");

constexpr double gap = 26;

} // namespace

void OBBulletedList::addItem(const Ref<OBBulletedListItem>& item) {
    items_.push_back(item);
    addSubview(item);
}

double OBBulletedList::heightForWidth(double width) const {
    double height = 0;
    for (const auto& item : items_)
        height += (height > 0 ? gap : 0) + item->heightForWidth(width);
    return height;
}

void OBBulletedList::layoutSubviews() {
    UIView::layoutSubviews();
    const auto width = bounds().size.width;
    double top = 0;
    for (const auto& item : items_) {
        const auto height = item->heightForWidth(width);
        item->setFrame(CGRectMake(0, top, width, height));
        top += height + gap;
    }
}
