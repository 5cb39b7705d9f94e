#include "Presentations.h"

#include "ObjectiveC/NSObject.h"
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

    [[nodiscard]] UIView& shownView() const override { return *view_; }

    void dismissPresented() override {}

private:
    Ref<UIView> view_ = make<UIView>();
};

} // namespace

TEST(PresentationsTest, listsWhatIsPresentedTheTopmostLast) {
    Presentations presentations;
    EXPECT_EQ(presentations.top(), nullptr);
    const auto lower = make<Sheet>();
    const auto upper = make<Sheet>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    EXPECT_THAT(presentations.all(), ElementsAre(lower.get(), upper.get()));
    EXPECT_EQ(presentations.top(), upper.get());
}

TEST(PresentationsTest, forgetsWhatIsTakenAwayOnce) {
    Presentations presentations;
    const auto lower = make<Sheet>();
    const auto upper = make<Sheet>();
    presentations.add(*lower, *lower);
    presentations.add(*upper, *upper);
    presentations.remove(*lower);
    presentations.remove(*lower);
    EXPECT_THAT(presentations.all(), ElementsAre(upper.get()));
}

TEST(PresentationsTest, forgetsWhatIsGone) {
    Presentations presentations;
    {
        const auto sheet = make<Sheet>();
        presentations.add(*sheet, *sheet);
    }
    EXPECT_EQ(presentations.top(), nullptr);
    EXPECT_THAT(presentations.all(), ElementsAre());
}
