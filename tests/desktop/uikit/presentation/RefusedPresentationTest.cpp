// What a controller may not present, and when.

#include "presentation/PresentationFixture.h"

#include <functional>
#include <ostream>

namespace {

using std::chrono::milliseconds;
using testing::IsEmpty;

class RefusedPresentationTest : public PresentationFixture {
protected:
    Ref<LoggedPage> sheet = page("B");
    Ref<LoggedPage> second = page("C");
};

} // namespace

namespace {

struct Refusal {
    const char* name;
    std::function<void(UIViewController& root, const Ref<UIViewController>& other)> arrange;
    std::function<UIViewController*(UIViewController& root)> presenter;
    const char* problem;
};

void PrintTo(const Refusal& refusal, std::ostream* stream) {
    *stream << refusal.name;
}

class RefusedPresentation : public PresentationFixture, public testing::WithParamInterface<Refusal> {};

} // namespace

TEST_P(RefusedPresentation, isLoggedOnceAndItsCompletionNeverCalled) {
    const auto other = page("O");
    GetParam().arrange(*navigation, other);
    const auto before = navigation->presentedViewController();
    const auto lone = page("Lone");
    static_cast<void>(device.log().take());
    auto* const presenter = GetParam().presenter(*navigation);
    presentOn(presenter != nullptr ? *presenter : *lone, other, true);
    const auto lines = device.log().take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], testing::StartsWith("Attempt to present "));
    EXPECT_THAT(lines[0], testing::HasSubstr(GetParam().problem));
    EXPECT_EQ(navigation->presentedViewController(), before);
    settle();
    EXPECT_THAT(log, testing::Not(testing::Contains("presented O")));
    EXPECT_THAT(device.log().take(), IsEmpty());
}

namespace {

void presentPlain(UIViewController& presenter, bool animated) {
    presenter.presentViewController(make<UIViewController>(), animated, {});
}

UIViewController* rootItself(UIViewController& root) {
    return &root;
}

UIViewController* whatItPresents(UIViewController& root) {
    return root.presentedViewController().get();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cases, RefusedPresentation,
    testing::Values(
        Refusal{"presentsAlready", [](auto& root, const auto&) { presentPlain(root, false); }, rootItself,
                "while it presents"},
        Refusal{"isPresenting", [](auto& root, const auto&) { presentPlain(root, true); }, rootItself,
                "while it presents"},
        Refusal{"isDismissing",
                [](auto& root, const auto&) {
                    presentPlain(root, false);
                    root.dismissViewControllerAnimated(true, {});
                },
                rootItself, "while it presents"},
        Refusal{"isBeingPresented", [](auto& root, const auto&) { presentPlain(root, true); }, whatItPresents,
                "on its way"},
        Refusal{"isBeingDismissed",
                [](auto& root, const auto&) {
                    presentPlain(root, false);
                    root.dismissViewControllerAnimated(true, {});
                },
                whatItPresents, "on its way"},
        Refusal{"isInNoWindow", [](auto&, const auto&) {}, [](auto&) -> UIViewController* { return nullptr; },
                "not in the window hierarchy"},
        Refusal{"isPresentedAlready",
                [](auto& root, const auto& other) { root.presentViewController(other, false, {}); },
                whatItPresents, "shown already"},
        Refusal{"isAChild", [](auto& root, const auto& other) { root.peer().addChild(other); }, rootItself,
                "shown already"}),
    [](const auto& one) { return one.param.name; });

TEST_F(RefusedPresentationTest, nothingAndThePresenterItselfAreRefused) {
    presentOn(*navigation, nullptr);
    presentOn(*navigation, navigation);
    EXPECT_EQ(device.log().take().size(), 2U);
    EXPECT_THAT(takeLog(), IsEmpty());
}
