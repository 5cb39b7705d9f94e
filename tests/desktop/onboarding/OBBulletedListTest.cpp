#include "OBBulletedList.h"

#include "RectGeometry.h"
#include "WelcomeFixture.h"

namespace {

constexpr double rounding = 1e-9;

class OBBulletedListTest : public WelcomeFixture {};

TEST_F(OBBulletedListTest, HasItsItemsBelowEachOther) {
    for (const auto width : {100.0, 326.0, 448.0}) {
        const auto list = make<OBBulletedList>();
        EXPECT_EQ(list->heightForWidth(width), 0);
        for (const auto* const text :
             {"", "Short", "A text of more than one line, as most of them are, at least here"})
            list->addItem(make<OBBulletedListItem>(OBBulletedListItem::Content{"Title", text, nullptr}));
        list->setFrame(CGRectMake(0, 0, width, list->heightForWidth(width)));
        list->peer().layoutIfNeeded();
        double top = 0;
        for (const auto& item : list->items()) {
            EXPECT_EQ(item->frame().origin.x, 0);
            EXPECT_NEAR(item->frame().origin.y, top, rounding);
            EXPECT_EQ(item->frame().size, (CGSize{width, item->heightForWidth(width)}));
            top = CGRectGetMaxY(item->frame()) + 26;
        }
        EXPECT_NEAR(list->heightForWidth(width), top - 26, rounding);
    }
}

} // namespace
