#include "screen/Presentations.h"

#include "PresentedStandIn.h"
#include "TestDevice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class PresentationsTest : public testing::Test {
protected:
    TestDevice device;
    Screen screen{{}};
    Presentations& presentations = screen.presentations();
};

} // namespace

TEST_F(PresentationsTest, listsWhatIsPresentedTheTopmostLast) {
    EXPECT_EQ(presentations.top(), nullptr);
    const auto lower = make<PresentedStandIn>();
    const auto upper = make<PresentedStandIn>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    EXPECT_THAT(presentations.all(), ElementsAre(lower.get(), upper.get()));
    EXPECT_EQ(presentations.top(), upper.get());
}

TEST_F(PresentationsTest, forgetsWhatIsTakenAwayOnce) {
    const auto lower = make<PresentedStandIn>();
    const auto upper = make<PresentedStandIn>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    presentations.remove(*lower);
    presentations.remove(*lower);
    EXPECT_THAT(presentations.all(), ElementsAre(upper.get()));
}

TEST_F(PresentationsTest, forgetsWhatIsGone) {
    {
        const auto sheet = make<PresentedStandIn>();
        presentations.add(*sheet, *sheet);
    }
    EXPECT_EQ(presentations.top(), nullptr);
    EXPECT_THAT(presentations.all(), ElementsAre());
}

TEST_F(PresentationsTest, dismissesOnlyWhatGoesWithTheApplicationsLeaving) {
    const auto sheet = make<PresentedStandIn>();
    const auto menu = make<PresentedStandIn>();
    menu->transient = true;
    presentations.add(*sheet, *sheet);
    presentations.add(*menu, *menu);
    presentations.dismissTransient();
    EXPECT_EQ(sheet->dismissals, 0);
    EXPECT_EQ(menu->dismissals, 1);
}
