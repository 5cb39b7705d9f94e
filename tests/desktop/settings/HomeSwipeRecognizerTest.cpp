#include "HomeSwipeRecognizer.h"

#include "Phone.h"
#include "views/UIViewPeer.h"

#include <chrono>
#include <utility>
#include <vector>

namespace {

using std::chrono::milliseconds;

/// A phone's screen with a page that is drawn up, and a finger.
class HomeSwipeRecognizerTest : public Phone {
protected:
    HomeSwipeRecognizerTest() {
        page->setFrame(screen.bounds());
        page->peer().addGestureRecognizer(make<HomeSwipeRecognizer>(HomeSwipeRecognizer::Follower{
            .drawn = [this](CGPoint translation) { translations.push_back(translation); },
            .released = [this](bool goesHome) { releases.push_back(goesHome); }}));
        window->addSubview(page);
    }

    /// From the lower edge straight up, in so many steps of 16 ms.
    void draw(double points, int steps) { drag({195, lowerEdge}, {195, lowerEdge - points}, steps); }

    void lift(double points) { up({195, lowerEdge - points}); }

    static constexpr double lowerEdge = 840;

    Ref<UIView> page = make<UIView>();
    std::vector<CGPoint> translations;
    std::vector<bool> releases;
};

} // namespace

TEST_F(HomeSwipeRecognizerTest, TellsHowFarTheFingerHasComeSinceItCountsAsAMovement) {
    draw(100, 10);
    ASSERT_FALSE(translations.empty());
    EXPECT_EQ(translations.front(), (CGPoint{0, 0}));
    EXPECT_EQ(translations.back(), (CGPoint{0, -90}));
    EXPECT_TRUE(releases.empty());
}

TEST_F(HomeSwipeRecognizerTest, AFifthOfTheHeightIsEnough) {
    for (const auto& [points, goesHome] : {std::pair(170.0, false), std::pair(190.0, true)}) {
        releases.clear();
        draw(points, 40);
        advance(milliseconds(200)); // held still
        lift(points);
        EXPECT_EQ(releases, std::vector{goesHome}) << points;
    }
}

TEST_F(HomeSwipeRecognizerTest, AFlickIsEnoughFromAnywhere) {
    draw(80, 4);
    lift(80);
    EXPECT_EQ(releases, std::vector{true});
}

TEST_F(HomeSwipeRecognizerTest, AGestureThatIsTakenAwayDoesNotGoHome) {
    draw(400, 40);
    cancel();
    EXPECT_EQ(releases, std::vector{false});
}

TEST_F(HomeSwipeRecognizerTest, ATapAtTheEdgeIsNoGesture) {
    draw(5, 1);
    lift(5);
    EXPECT_TRUE(translations.empty());
    EXPECT_TRUE(releases.empty());
}
