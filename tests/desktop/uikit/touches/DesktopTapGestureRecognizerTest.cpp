#include "touches/DesktopTapGestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "screen/TouchFixture.h"
#include "views/UIViewPeer.h"

namespace {

class TapTarget final : public NSObject {
public:
    void tapped(const Ref<NSObject>& sender) { senders.push_back(sender); }

    std::vector<Ref<NSObject>> senders;
};

const Class targetClass =
    Class::define<TapTarget>("TapTestTarget", {method<"tapped:", &TapTarget::tapped>()});

/// A view that is as large as the window.
class DesktopTapGestureRecognizerTest : public TouchFixture {
protected:
    DesktopTapGestureRecognizerTest() {
        view->setFrame(screen.bounds());
        window->addSubview(view);
    }

    Ref<UIView> view = make<UIView>();
    Ref<TapTarget> target = make<TapTarget>();
};

TEST_F(DesktopTapGestureRecognizerTest, TheTargetGetsTheRecogniserOnEachTap) {
    const auto recognizer = UITapGestureRecognizer::initWithTarget(*target, "tapped:");
    EXPECT_EQ(recognizer->view(), nullptr);
    view->addGestureRecognizer(recognizer);
    EXPECT_EQ(recognizer->view(), view);
    tap(100, 100);
    tap(120, 100);
    ASSERT_EQ(target->senders.size(), 2U);
    EXPECT_EQ(target->senders[0], recognizer);
    EXPECT_EQ(target->senders[1], recognizer);
}

TEST_F(DesktopTapGestureRecognizerTest, TheViewKeepsItAliveAndNobodyElse) {
    auto recognizer = UITapGestureRecognizer::initWithTarget(*target, "tapped:");
    const auto watched = Weak<UITapGestureRecognizer>(recognizer);
    view->addGestureRecognizer(std::exchange(recognizer, nullptr));
    EXPECT_TRUE(watched.strong());
    tap(100, 100);
    EXPECT_EQ(target->senders.size(), 1U);
    target->senders.clear();
    view->peer().removeFromSuperview();
    view = nullptr;
    EXPECT_FALSE(watched.strong());
}

TEST_F(DesktopTapGestureRecognizerTest, WithoutItsViewItIsThereForWhoeverKeepsIt) {
    const auto recognizer = UITapGestureRecognizer::initWithTarget(*target, "tapped:");
    view->addGestureRecognizer(recognizer);
    view->peer().removeFromSuperview();
    view = nullptr;
    EXPECT_EQ(recognizer->view(), nullptr);
}

TEST_F(DesktopTapGestureRecognizerTest, ATargetThatIsGoneGetsNothing) {
    view->addGestureRecognizer(UITapGestureRecognizer::initWithTarget(*target, "tapped:"));
    const auto watched = Weak<TapTarget>(target);
    target = nullptr;
    EXPECT_FALSE(watched.strong());
    tap(100, 100);
}

} // namespace
