#include "Presentations.h"

#include "ObjectiveC/NSObject.h"
#include "Screen.h"
#include "TestDevice.h"
#include "UIKit/UIView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class Sheet final : public NSObject, public Presented {
public:
    // Presented:
    [[nodiscard]] std::string_view kind() const override { return "sheet"; }

    [[nodiscard]] std::string title() const override { return "Sheet"; }

    [[nodiscard]] std::vector<Action> actions() const override { return {}; }

    [[nodiscard]] std::optional<Details> details() const override { return std::nullopt; }

    [[nodiscard]] bool blackensStatusBar() const override { return false; }

    void keyboardHeightDidChange() override {}

    [[nodiscard]] UIView& shownView() const override { return *view_; }

    [[nodiscard]] bool isTransient() const override { return transient; }

    void dismissPresented() override { ++dismissals; }

    bool transient = false;
    int dismissals = 0;

private:
    Ref<UIView> view_ = make<UIView>();
};

class PresentationsTest : public testing::Test {
protected:
    TestDevice device;
    Screen screen{{}};
    Presentations& presentations = screen.presentations();
};

} // namespace

TEST_F(PresentationsTest, listsWhatIsPresentedTheTopmostLast) {
    EXPECT_EQ(presentations.top(), nullptr);
    const auto lower = make<Sheet>();
    const auto upper = make<Sheet>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    EXPECT_THAT(presentations.all(), ElementsAre(lower.get(), upper.get()));
    EXPECT_EQ(presentations.top(), upper.get());
}

TEST_F(PresentationsTest, forgetsWhatIsTakenAwayOnce) {
    const auto lower = make<Sheet>();
    const auto upper = make<Sheet>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    presentations.remove(*lower);
    presentations.remove(*lower);
    EXPECT_THAT(presentations.all(), ElementsAre(upper.get()));
}

TEST_F(PresentationsTest, forgetsWhatIsGone) {
    {
        const auto sheet = make<Sheet>();
        presentations.add(*sheet, *sheet);
    }
    EXPECT_EQ(presentations.top(), nullptr);
    EXPECT_THAT(presentations.all(), ElementsAre());
}

TEST_F(PresentationsTest, dismissesOnlyWhatGoesWithTheApplicationsLeaving) {
    const auto sheet = make<Sheet>();
    const auto menu = make<Sheet>();
    menu->transient = true;
    presentations.add(*sheet, *sheet);
    presentations.add(*menu, *menu);
    presentations.dismissTransient();
    EXPECT_EQ(sheet->dismissals, 0);
    EXPECT_EQ(menu->dismissals, 1);
}
