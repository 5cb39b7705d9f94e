#include "ProblemPage.h"

#include "TestDevice.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> textsIn(UIView& view) {
    std::vector<std::string> texts;
    for (const auto& subview : view.peer().subviews()) {
        if (const auto text = subview->peer().shownText())
            texts.push_back(*text);
    }
    return texts;
}

class ProblemPageTest : public testing::Test {
protected:
    TestDevice device;
    Screen screen{{}};
};

} // namespace

TEST_F(ProblemPageTest, SaysWhichPaneCannotBeOpenedAndWhy) {
    const auto page = make<ProblemPage>("Corvex", "There is no code.");
    EXPECT_EQ(page->peer().title(), "Corvex");
    EXPECT_EQ(textsIn(page->view()), (std::vector<std::string>{"Cannot Open “Corvex”", "There is no code."}));
}

TEST_F(ProblemPageTest, ALongReasonStaysWithinThePageBelowTheTitle) {
    const auto page = make<ProblemPage>("Corvex", std::string(400, 'a') + " " + std::string(400, 'b'));
    page->view().setFrame(CGRectMake(0, 0, 390, 844));
    page->view().peer().layoutIfNeeded();
    const auto& views = page->view().peer().subviews();
    ASSERT_EQ(views.size(), 3U);
    const auto title = views[1]->frame();
    const auto reason = views[2]->frame();
    EXPECT_GE(reason.origin.y, title.origin.y + title.size.height);
    EXPECT_GE(reason.origin.x, 32);
    EXPECT_LE(reason.origin.x + reason.size.width, 390 - 32);
    EXPECT_GT(reason.size.height, 100);
}
