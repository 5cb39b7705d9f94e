#include "views/UIViewPeer.h"

#include "screen/ShownScreen.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace std::chrono_literals;

/// Notes what it is told.
class NotingPeer final : public UIViewPeer {
public:
    explicit NotingPeer(std::string& notes) : notes_(notes) {}

    void didMoveToWindow() override { notes_ += window() != nullptr ? "in " : "out "; }

    void didMoveToSuperview() override { notes_ += superview() != nullptr ? "added " : "removed "; }

    void layoutSubviews() override { notes_ += "layout "; }

private:
    std::string& notes_;
};

class NotingView final : public UIView {
public:
    explicit NotingView(std::string& notes) : UIView(std::make_unique<NotingPeer>(notes)) {}
};

/// Notes what the pane's classes may override.
class OverridingView final : public UIView {
public:
    void tintColorDidChange() override {
        UIView::tintColorDidChange();
        notes += "tint ";
    }

    void didMoveToSuperview() override {
        UIView::didMoveToSuperview();
        notes += peer().superview() != nullptr ? "added " : "removed ";
    }

    std::string notes;
};

std::vector<const UIView*> subviewsOf(const UIView& view) {
    std::vector<const UIView*> found;
    for (const auto& subview : view.peer().subviews())
        found.push_back(subview.get());
    return found;
}

/// The views whose layers stand among the view's sublayers, in their order.
std::vector<const UIView*> viewsByLayers(const UIView& view) {
    std::vector<const UIView*> found;
    for (const auto& layer : view.layer().peer().sublayers()) {
        for (const auto& subview : view.peer().subviews()) {
            if (&subview->layer() == layer.get())
                found.push_back(subview.get());
        }
    }
    return found;
}

class UIViewPeerTest : public testing::Test {
protected:
    void expectOrder(std::initializer_list<const UIView*> order) const {
        const std::vector expected(order);
        EXPECT_EQ(subviewsOf(*root_), expected);
        EXPECT_EQ(viewsByLayers(*root_), expected);
    }

    TestDevice device_;
    Ref<UIView> root_ = make<UIView>();
    Ref<UIView> first_ = make<UIView>();
    Ref<UIView> second_ = make<UIView>();
    Ref<UIView> third_ = make<UIView>();
};

TEST_F(UIViewPeerTest, KeepsSubviewsAndTheirLayersInOneOrder) {
    root_->addSubview(second_);
    root_->insertSubview(first_, 0);
    root_->insertSubview(third_, 99);
    expectOrder({first_.get(), second_.get(), third_.get()});
    root_->insertSubview(first_, 1);
    expectOrder({second_.get(), first_.get(), third_.get()});
    root_->peer().bringSubviewToFront(*second_);
    expectOrder({first_.get(), third_.get(), second_.get()});
}

TEST_F(UIViewPeerTest, KeepsTheOrderAmongLayersThatAreNoViews) {
    const auto background = make<CALayer>();
    root_->layer().peer().addSublayer(background);
    root_->addSubview(second_);
    root_->peer().insertSubview(first_, 0);
    expectOrder({first_.get(), second_.get()});
    EXPECT_EQ(root_->layer().peer().sublayers().front(), background);
}

TEST_F(UIViewPeerTest, TakesAViewAwayFromItsSuperview) {
    const auto other = make<UIView>();
    other->addSubview(first_);
    root_->addSubview(first_);
    EXPECT_TRUE(other->peer().subviews().empty());
    EXPECT_TRUE(other->layer().peer().sublayers().empty());
    EXPECT_EQ(first_->peer().superview(), root_.get());
    first_->peer().removeFromSuperview();
    EXPECT_EQ(first_->peer().superview(), nullptr);
    expectOrder({});
}

TEST_F(UIViewPeerTest, TellsAClassThatOverridesIt) {
    const auto view = make<OverridingView>();
    first_->addSubview(view);
    EXPECT_EQ(std::exchange(view->notes, {}), "tint added ");
    root_->addSubview(first_);
    EXPECT_EQ(std::exchange(view->notes, {}), "tint ");
    root_->setTintColor(UIColor::systemRedColor());
    EXPECT_EQ(std::exchange(view->notes, {}), "tint ");
    EXPECT_EQ(view->tintColor(), root_->tintColor());
    view->setTintColor(UIColor::yellowColor());
    EXPECT_EQ(std::exchange(view->notes, {}), "tint ");
    root_->setTintColor({});
    EXPECT_EQ(std::exchange(view->notes, {}), "") << "it has a tint of its own";
    view->peer().removeFromSuperview();
    EXPECT_EQ(std::exchange(view->notes, {}), "tint removed ");
}

TEST_F(UIViewPeerTest, ListsItsSubviewsAndKeepsItsTag) {
    root_->addSubview(first_);
    root_->insertSubview(second_, 0);
    EXPECT_EQ(root_->subviews(), (std::vector{second_, first_}));
    EXPECT_EQ(root_->peer().tag(), 0);
    root_->setTag(-7);
    EXPECT_EQ(root_->peer().tag(), -7);
}

TEST_F(UIViewPeerTest, KnowsWhatItIsWithin) {
    root_->addSubview(first_);
    first_->addSubview(second_);
    EXPECT_TRUE(second_->peer().isDescendantOf(*root_));
    EXPECT_TRUE(root_->peer().isDescendantOf(*root_));
    EXPECT_FALSE(root_->peer().isDescendantOf(*second_));
}

TEST_F(UIViewPeerTest, LeavesItsSubviewsWithoutASuperviewWhenItGoes) {
    root_->addSubview(first_);
    root_ = nullptr;
    EXPECT_EQ(first_->peer().superview(), nullptr);
    EXPECT_EQ(first_->layer().peer().superlayer(), nullptr);
}

TEST_F(UIViewPeerTest, KeepsASubviewAlive) {
    const Weak<UIView> watched(first_);
    root_->addSubview(first_);
    first_ = nullptr;
    EXPECT_TRUE(watched.strong());
    root_ = nullptr;
    EXPECT_FALSE(watched.strong());
}

TEST(UIViewPeer, TellsAViewOfItsMovesInTheTree) {
    const ShownScreen shown;
    std::string notes;
    const auto view = make<NotingView>(notes);
    const auto outer = make<UIView>();
    outer->addSubview(view);
    EXPECT_EQ(notes, "added ");
    notes.clear();
    shown.window->addSubview(outer);
    EXPECT_EQ(notes, "in ");
    notes.clear();
    outer->addSubview(view);
    EXPECT_EQ(notes, "");
    outer->peer().removeFromSuperview();
    EXPECT_EQ(notes, "out ");
    notes.clear();
    view->peer().removeFromSuperview();
    EXPECT_EQ(notes, "removed ");
}

TEST(UIViewPeer, IsLaidOutWhenItsSizeOrItsSubviewsChange) {
    const TestDevice device;
    std::string notes;
    const auto view = make<NotingView>(notes);
    view->peer().layoutIfNeeded();
    EXPECT_EQ(notes, "layout ");
    view->peer().layoutIfNeeded();
    view->setFrame(CGRectMake(10, 0, 0, 0));
    view->peer().layoutIfNeeded();
    EXPECT_EQ(notes, "layout ");
    view->setFrame(CGRectMake(10, 0, 5, 0));
    view->peer().layoutIfNeeded();
    EXPECT_EQ(notes, "layout layout ");
    view->addSubview(make<UIView>());
    view->peer().layoutIfNeeded();
    EXPECT_EQ(notes, "layout layout layout ");
}

TEST(UIViewPeer, LaysOutASubviewAfterItsSuperview) {
    const TestDevice device;
    std::string notes;
    const auto outer = make<UIView>();
    const auto view = make<NotingView>(notes);
    outer->addSubview(view);
    notes.clear();
    outer->peer().layoutIfNeeded();
    EXPECT_EQ(notes, "layout ");
}

class HitTest : public testing::Test {
protected:
    [[nodiscard]] UIView* hit(double x, double y) const { return root_->peer().hitTest({x, y}); }

    static Ref<UIView> box(const CGRect& frame) { return makeWith<UIView>(&UIView::initWithFrame, frame); }

    void SetUp() override {
        root_->addSubview(back_);
        root_->addSubview(front_);
    }

    TestDevice device_;
    Ref<UIView> root_ = box(CGRectMake(0, 0, 100, 100));
    Ref<UIView> back_ = box(CGRectMake(0, 0, 50, 50));
    Ref<UIView> front_ = box(CGRectMake(20, 20, 50, 50));
};

TEST_F(HitTest, FindsTheFrontmostView) {
    EXPECT_EQ(hit(30, 30), front_.get());
    EXPECT_EQ(hit(10, 10), back_.get());
    EXPECT_EQ(hit(90, 90), root_.get());
    EXPECT_EQ(hit(100, 100), nullptr);
}

TEST_F(HitTest, PassesOverViewsThatTakeNoTouches) {
    front_->peer().setHidden(true);
    EXPECT_EQ(hit(30, 30), back_.get());
    front_->peer().setHidden(false);
    front_->setAlpha(0.005);
    EXPECT_EQ(hit(30, 30), back_.get());
    front_->setAlpha(0.01);
    EXPECT_EQ(hit(30, 30), front_.get());
    front_->setUserInteractionEnabled(false);
    EXPECT_EQ(hit(30, 30), back_.get());
}

TEST_F(HitTest, PassesOverWhatLiesOutsideItsSuperview) {
    const auto outside = box(CGRectMake(60, 0, 20, 20));
    front_->addSubview(outside);
    EXPECT_EQ(hit(85, 25), root_.get());
}

TEST_F(HitTest, FollowsTransformsAndScrolledBounds) {
    const auto inner = box(CGRectMake(0, 200, 10, 10));
    front_->addSubview(inner);
    front_->peer().setBounds(CGRectMake(0, 190, 50, 50));
    EXPECT_EQ(hit(25, 35), inner.get());
    front_->peer().setTransform(AffineTransform::scale(2)); // around (45, 45): from (-5, -5) on
    EXPECT_EQ(hit(1, 20), inner.get());
}

TEST_F(HitTest, TakesTheModelsPlaceDuringAnAnimation) {
    UIView::animateWithDuration(1, 0, UIViewAnimationOptions::None,
                                [&] { front_->setFrame(CGRectMake(80, 80, 10, 10)); }, {});
    EXPECT_EQ(hit(85, 85), front_.get());
    EXPECT_EQ(hit(60, 60), root_.get());
}

TEST_F(HitTest, FindsNothingInAViewThatATransformFlattens) {
    front_->peer().setTransform(AffineTransform::scale(0));
    EXPECT_EQ(hit(45, 45), back_.get());
}

} // namespace
