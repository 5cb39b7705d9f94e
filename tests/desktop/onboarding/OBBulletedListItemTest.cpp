#include "OBBulletedListItem.h"

#include "RectGeometry.h"
#include "WelcomeFixture.h"
#include "touches/PanGestureRecognizer.h"

namespace {

constexpr double width = 326;
constexpr double rounding = 1e-9;
constexpr double textWidth = width - 56;
constexpr auto sentence = "A text that takes a line or two. ";

std::string times(int count) {
    std::string text;
    for (int index = 0; index < count; ++index)
        text += sentence;
    return text;
}

class OBBulletedListItemTest : public WelcomeFixture {
protected:
    void make(const OBBulletedListItem::Content& content, double extraHeight = 0) {
        item_ = ::make<OBBulletedListItem>(content);
        item_->setFrame(CGRectMake(0, 0, width, item_->heightForWidth(width) + extraHeight));
        item_->peer().layoutIfNeeded();
    }

    [[nodiscard]] CGRect frameOf(std::size_t subview) const {
        return item_->peer().subviews()[subview]->frame();
    }

    [[nodiscard]] UILabel& label(std::size_t subview) const {
        return dynamic_cast<UILabel&>(*item_->peer().subviews()[subview]);
    }

    Ref<OBBulletedListItem> item_;
};

TEST_F(OBBulletedListItemTest, HasItsTextsBesideAColumnForTheImage) {
    struct Case {
        const char* what = nullptr;
        OBBulletedListItem::Content content;
    };

    for (const auto& [what, content] : {
             Case{"short", {"Title", "A text", symbol("gear")}},
             Case{"long", {times(3), times(8), symbol("gear")}},
             Case{"no image", {"Title", "A text", nullptr}},
             Case{"a large picture", {"Title", "A text", picture(300, 300)}},
         }) {
        make(content);
        EXPECT_EQ(frameOf(0).origin.x, 0) << what;
        EXPECT_EQ(frameOf(0).size.width, 40) << what;
        for (const std::size_t text : {1U, 2U}) {
            EXPECT_EQ(frameOf(text).origin.x, 56) << what;
            EXPECT_EQ(frameOf(text).size.width, textWidth) << what;
            EXPECT_FALSE(isShortened(label(text))) << what;
        }
        EXPECT_NEAR(frameOf(2).origin.y, CGRectGetMaxY(frameOf(1)) + 2, rounding) << what;
    }
}

TEST_F(OBBulletedListItemTest, HasImageAndTextsOnOneMiddleLine) {
    for (const auto count : {0, 1, 3, 9}) {
        for (const auto extra : {0.0, 30.0}) {
            make({"Title", times(count), symbol("gear")}, extra);
            const auto middle = item_->bounds().size.height / 2;
            const auto bottom = CGRectGetMaxY(frameOf(count > 0 ? 2 : 1));
            EXPECT_NEAR(CGRectGetMidY(frameOf(0)), middle, 0.01);
            EXPECT_NEAR((frameOf(1).origin.y + bottom) / 2, middle, 0.01);
        }
    }
}

TEST_F(OBBulletedListItemTest, IsAsHighAsItsTextsAndNoLowerThanTheImage) {
    make({"Title", "", nullptr});
    EXPECT_EQ(item_->heightForWidth(width), 32);
    double last = 32;
    for (const auto count : {1, 3, 6, 12}) {
        make({"Title", times(count), nullptr});
        EXPECT_GT(item_->heightForWidth(width), last);
        EXPECT_NEAR(item_->heightForWidth(width), CGRectGetMaxY(frameOf(2)), rounding);
        last = item_->heightForWidth(width);
    }
    EXPECT_LT(item_->heightForWidth(2 * width), last);
}

TEST_F(OBBulletedListItemTest, HasNoLabelForATextThatIsNotThere) {
    make({"Title", "", symbol("gear")});
    EXPECT_EQ(item_->peer().subviews().size(), 2U);
}

TEST_F(OBBulletedListItemTest, IsTappableWhileATapIsWatchedFor) {
    make({"Title", "A text", symbol("gear")});
    EXPECT_FALSE(item_->isTappable());
    item_->peer().addGestureRecognizer(::make<PanGestureRecognizer>());
    EXPECT_FALSE(item_->isTappable());
    const auto tap = ::make<TapGestureRecognizer>();
    item_->peer().addGestureRecognizer(tap);
    EXPECT_TRUE(item_->isTappable());
    tap->setEnabled(false);
    EXPECT_FALSE(item_->isTappable());
    tap->setEnabled(true);
    item_->setUserInteractionEnabled(false);
    EXPECT_FALSE(item_->isTappable());
}

TEST_F(OBBulletedListItemTest, IsAButtonToThoseWhoDoNotSeeItWhileATapIsWatchedFor) {
    make({"Title", "A text", symbol("gear")});
    EXPECT_FALSE(item_->peer().accessibility().isElement);
    item_->peer().addGestureRecognizer(::make<TapGestureRecognizer>());
    const auto told = item_->peer().accessibility();
    EXPECT_TRUE(told.isElement);
    EXPECT_EQ(told.role, AccessibilityRole::Button);
    EXPECT_EQ(told.label, "Title");
    EXPECT_EQ(told.value, "A text");
}

} // namespace
