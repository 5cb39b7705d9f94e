// What is presented when its presenter, its window or the application comes to an end.

#include "presentation/PresentationFixture.h"

#include <optional>
#include <ostream>

namespace {

using std::chrono::milliseconds;

class PresentationEndTest : public PresentationFixture {
protected:
    Ref<LoggedPage> sheet = page("B");
};

} // namespace

TEST_F(PresentationEndTest, thePresenterAloneKeepsWhatItPresents) {
    const Weak<UIViewController> watched(sheet);
    present(sheet, true);
    sheet = nullptr;
    settle();
    EXPECT_NE(watched.strong(), nullptr);
    dismissBy(*navigation, true);
    settle();
    EXPECT_EQ(watched.strong(), nullptr);
}

TEST_F(PresentationEndTest, theControllerThatWasDismissedIsGoneBeforeTheCompletion) {
    const Weak<UIViewController> watched(sheet);
    present(sheet);
    sheet = nullptr;
    auto isGone = false;
    navigation->dismissViewControllerAnimated(true, [&] { isGone = !watched.strong(); });
    settle();
    EXPECT_TRUE(isGone);
}

namespace {

struct Moment {
    const char* name;
    int presentingFor; ///< milliseconds
    std::optional<int> dismissingFor;
};

void PrintTo(const Moment& moment, std::ostream* stream) {
    *stream << moment.name;
}

class EndInBetween : public PresentationFixture, public testing::WithParamInterface<Moment> {
protected:
    EndInBetween() {
        auto lower = page("B");
        auto upper = page("C");
        watched.emplace_back(lower);
        watched.emplace_back(upper);
        present(lower);
        presentOn(*lower, upper, true);
        advance(milliseconds(GetParam().presentingFor));
        if (GetParam().dismissingFor) {
            dismissBy(*navigation, true);
            advance(milliseconds(*GetParam().dismissingFor));
        }
        takeLog();
    }

    ~EndInBetween() override {
        settle();
        for (const auto& controller : watched)
            EXPECT_EQ(controller.strong(), nullptr);
        EXPECT_EQ(screen.presentations().top(), nullptr);
        for (const auto& line : log)
            EXPECT_THAT(line,
                        testing::AnyOf(testing::HasSubstr(" D"), testing::StartsWith("viewWillDisappear"),
                                       testing::StartsWith("viewDidDisappear")));
        EXPECT_THAT(log, testing::Not(testing::Contains(testing::StartsWith("presented"))));
    }

    std::vector<Weak<UIViewController>> watched;
};

} // namespace

TEST_P(EndInBetween, ofTheWindowLeavesNothing) {
    screen.removeWindow(*window);
    window = nullptr;
}

TEST_P(EndInBetween, ofTheWindowsPlaceOnTheScreenLeavesNothing) {
    screen.removeWindow(*window);
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_P(EndInBetween, ofTheRootLeavesNothing) {
    window->setRootViewController(make<UIViewController>());
    EXPECT_EQ(window->peer().subviews().size(), 1U);
}

TEST_P(EndInBetween, ofThePresenterWithItsWindowLeavesNothing) {
    window->setRootViewController(nullptr);
    screen.removeWindow(*window);
    navigation = nullptr;
    window = nullptr;
}

TEST_P(EndInBetween, ofThePresenterAloneLeavesNothing) {
    const auto view = retain(&navigation->view());
    screen.removeWindow(*window);
    window->setRootViewController(nullptr);
    window->addSubview(view); // held by the window while its controller goes
    screen.addWindow(window);
    const auto late = page("D");
    watched.emplace_back(late);
    presentOn(*navigation, late, true);
    navigation = nullptr;
    EXPECT_EQ(window->peer().subviews().size(), 1U);
    window = nullptr;
}

INSTANTIATE_TEST_SUITE_P(Moments, EndInBetween,
                         testing::Values(Moment{"atTheStart", 0, {}}, Moment{"onTheWayIn", 100, {}},
                                         Moment{"whilePresented", 500, {}}, Moment{"turningRound", 200, 0},
                                         Moment{"onTheWayOut", 500, 100},
                                         Moment{"justBeforeTheEnd", 500, 499}),
                         [](const auto& one) { return one.param.name; });

TEST_F(PresentationEndTest, theCompletionMayEndTheApplication) {
    for (const auto animated : {false, true}) {
        present(page("B"));
        takeLog();
        navigation->dismissViewControllerAnimated(animated, [this] {
            window->setRootViewController(nullptr);
            log.emplace_back("ended");
        });
        settle();
        EXPECT_EQ(log.back(), "ended");
        window->setRootViewController(navigation);
    }
}
