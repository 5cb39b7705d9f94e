#include "OBHeaderView.h"

#include "RectGeometry.h"
#include "WelcomeFixture.h"

namespace {

constexpr double headerWidth = 342;
constexpr auto longText =
    "A text that is so long that it takes more than the one line that there is room for";

class OBHeaderViewTest : public WelcomeFixture {
protected:
    void fill(const OBHeaderView::Content& content) {
        header_->setContent(content);
        header_->setFrame(CGRectMake(0, 0, headerWidth, header_->heightForWidth(headerWidth)));
        header_->peer().layoutIfNeeded();
    }

    [[nodiscard]] CGRect frameOf(std::size_t subview) const {
        return header_->peer().subviews()[subview]->frame();
    }

    [[nodiscard]] CGRect image() const { return frameOf(0); }

    [[nodiscard]] CGRect title() const { return frameOf(1); }

    [[nodiscard]] CGRect detail() const { return frameOf(2); }

    Ref<OBHeaderView> header_ = make<OBHeaderView>();
};

TEST_F(OBHeaderViewTest, ShowsPicturesBetween60And80High) {
    struct Case {
        int width = 0;
        int height = 0;
        CGRect expected;
    };

    for (const auto& [pictureWidth, height, expected] : {
             Case{29, 29, CGRectMake(141, 60, 60, 60)},
             Case{60, 60, CGRectMake(141, 60, 60, 60)},
             Case{72, 72, CGRectMake(135, 60, 72, 72)},
             Case{200, 200, CGRectMake(131, 60, 80, 80)},
             Case{400, 100, CGRectMake(11, 60, 320, 80)},
             Case{900, 60, CGRectMake(0, 60, 342, 60)},
             Case{30, 60, CGRectMake(156, 60, 30, 60)},
         }) {
        fill({.title = "New", .detail = {}, .image = picture(pictureWidth, height)});
        EXPECT_EQ(image(), expected) << pictureWidth << " x " << height;
        EXPECT_EQ(title().origin.y, CGRectGetMaxY(expected) + 20);
    }
}

TEST_F(OBHeaderViewTest, ShowsSymbolsOfAnySizeAlike) {
    for (const auto size : {10.0, 17.0, 200.0}) {
        fill({.title = "New", .detail = {}, .image = DesktopImage::symbol("gear", size)});
        EXPECT_EQ(image().origin.y, 60) << size;
        EXPECT_EQ(image().size.height, 64) << size;
        EXPECT_NEAR(CGRectGetMidX(image()), headerWidth / 2, 0.5) << size;
    }
}

TEST_F(OBHeaderViewTest, HasItsPartsBelowEachOther) {
    struct Case {
        const char* what = nullptr;
        OBHeaderView::Content content;
        double titleTop = 0;
        bool hasDetail = false;
    };

    for (const auto& [what, content, titleTop, hasDetail] : {
             Case{"all", {"New", "Version 3", picture(60, 60)}, 140, true},
             Case{"no image", {"New", "Version 3", nullptr}, 65, true},
             Case{"no detail", {"New", "", picture(60, 60)}, 140, false},
             Case{"a title", {"New", "", nullptr}, 65, false},
             Case{"wraps", {longText, longText, nullptr}, 65, true},
         }) {
        fill(content);
        EXPECT_EQ(title().origin.y, titleTop) << what;
        EXPECT_EQ(detail().size.height > 0, hasDetail) << what;
        EXPECT_EQ(detail().origin.y, CGRectGetMaxY(title()) + (hasDetail ? 10 : 0)) << what;
        EXPECT_EQ(header_->heightForWidth(headerWidth), CGRectGetMaxY(detail())) << what;
        for (const auto& text : {title(), detail()}) {
            EXPECT_EQ(text.origin.x, 0) << what;
            EXPECT_EQ(text.size.width, headerWidth) << what;
        }
    }
}

TEST_F(OBHeaderViewTest, WrapsItsTitleToThreeLinesAtMost) {
    struct Case {
        std::string title;
        double lines;
    };

    for (const auto& [text, lines] : {Case{"Title", 1},
                                      {"Title of a page Title of a page", 2},
                                      {"Title of a page Title of a page Title of a page", 3},
                                      {std::string(4000, 'a'), 3}}) {
        fill({.title = text, .detail = {}, .image = nullptr});
        EXPECT_NEAR(title().size.height, lines * 1.193 * 34, 0.5) << text;
    }
}

TEST_F(OBHeaderViewTest, WrapsItsDetailToAsManyLinesAsItNeeds) {
    std::string text;
    double last = 0;
    for (int times = 0; times < 6; ++times) {
        text += longText;
        text += ' ';
        fill({.title = "New", .detail = text, .image = nullptr});
        EXPECT_GT(detail().size.height, last);
        last = detail().size.height;
        EXPECT_FALSE(isShortened(dynamic_cast<UILabel&>(*header_->peer().subviews()[2])));
    }
}

TEST_F(OBHeaderViewTest, CentresItsTexts) {
    fill({.title = "New", .detail = "Version 3", .image = nullptr});
    for (const std::size_t index : {1U, 2U}) {
        auto& label = dynamic_cast<UILabel&>(*header_->peer().subviews()[index]);
        EXPECT_EQ(peerOf<UILabelPeer>(label).textAlignment(), NSTextAlignment::Center);
    }
}

} // namespace
