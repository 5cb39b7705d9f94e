#include "navigation/NavigationFixture.h"
#include "views/UIViewPeer.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class UIViewControllerTest : public NavigationFixture {};

} // namespace

TEST_F(UIViewControllerTest, itsViewIsMadeWhenItIsFirstAskedForAndAnnouncedOnce) {
    const auto page = this->page("A");
    EXPECT_FALSE(page->peer().isViewLoaded());
    EXPECT_THAT(log, ElementsAre());
    auto& view = page->view();
    EXPECT_EQ(&page->view(), &view);
    EXPECT_EQ(view.frame(), screen.bounds());
    EXPECT_EQ(view.peer().controller(), page.get());
    EXPECT_THAT(log, ElementsAre("viewDidLoad A"));
}

TEST_F(UIViewControllerTest, theRootOfAWindowAppearsWithTheWindowAndLeavesWithIt) {
    const auto page = this->page("A");
    screen.removeWindow(*window);
    window->setRootViewController(page);
    EXPECT_THAT(log, ElementsAre("viewDidLoad A"));
    log.clear();
    screen.addWindow(window);
    EXPECT_THAT(log, ElementsAre("viewWillAppear A", "viewDidAppear A"));
    EXPECT_EQ(page->view().frame(), screen.bounds());
    log.clear();
    screen.removeWindow(*window);
    EXPECT_THAT(log, ElementsAre("viewWillDisappear A", "viewDidDisappear A"));
}

TEST_F(UIViewControllerTest, aNewRootTakesTheOldOnesPlace) {
    const auto first = page("A");
    const auto second = page("B");
    window->setRootViewController(first);
    screen.addWindow(window);
    log.clear();
    window->setRootViewController(second);
    EXPECT_THAT(log, ElementsAre("viewWillDisappear A", "viewDidDisappear A", "viewDidLoad B",
                                 "viewWillAppear B", "viewDidAppear B"));
    EXPECT_EQ(first->view().peer().superview(), nullptr);
}

TEST_F(UIViewControllerTest, isToldOfItsAppearanceOnlyWhenThatIsNews) {
    const auto page = this->page("A");
    page->peer().endAppearance(false);
    page->peer().beginAppearance(false, false);
    EXPECT_THAT(log, ElementsAre());
    page->peer().beginAppearance(true, false);
    page->peer().beginAppearance(true, false);
    page->peer().endAppearance(false);
    page->peer().endAppearance(false);
    EXPECT_THAT(log, ElementsAre("viewDidLoad A", "viewWillAppear A", "viewDidAppear A"));
}

TEST_F(UIViewControllerTest, childrenWhoseViewsAreWithinItsViewComeAndGoWithIt) {
    const auto parent = page("A");
    const auto inside = page("B");
    const auto outside = page("C");
    parent->peer().addChild(inside);
    parent->peer().addChild(outside);
    parent->view().addSubview(retain(&inside->view()));
    static_cast<void>(outside->view());
    log.clear();
    parent->peer().beginAppearance(true, false);
    parent->peer().endAppearance(false);
    EXPECT_THAT(log,
                ElementsAre("viewWillAppear A", "viewWillAppear B", "viewDidAppear A", "viewDidAppear B"));
}

TEST_F(UIViewControllerTest, aChildHasOneParentAtATime) {
    const auto first = page("A");
    const auto second = page("B");
    const auto child = page("C");
    first->peer().addChild(child);
    second->peer().addChild(child);
    EXPECT_EQ(child->peer().parent(), second.get());
    EXPECT_TRUE(first->peer().children().empty());
    child->peer().removeFromParent();
    EXPECT_EQ(child->peer().parent(), nullptr);
    EXPECT_TRUE(second->peer().children().empty());
}

TEST_F(UIViewControllerTest, aParentThatGoesLeavesItsChildWithoutOne) {
    const auto child = page("B");
    {
        const auto parent = page("A");
        parent->peer().addChild(child);
    }
    EXPECT_EQ(child->peer().parent(), nullptr);
    EXPECT_FALSE(child->navigationController());
}

TEST_F(UIViewControllerTest, aViewThatOutlivesItsControllerBelongsToNone) {
    Ref<UIView> view;
    {
        const auto page = this->page("A");
        view = retain(&page->view());
    }
    EXPECT_EQ(view->peer().controller(), nullptr);
    view->peer().setNeedsLayout();
    view->peer().layoutIfNeeded();
}

TEST_F(UIViewControllerTest, isFoundFromAnyViewInIts) {
    const auto outer = page("A");
    const auto inner = page("B");
    const auto view = make<UIView>();
    EXPECT_FALSE(view->_viewControllerForAncestor());
    inner->view().addSubview(view);
    EXPECT_EQ(view->_viewControllerForAncestor(), inner);
    EXPECT_EQ(inner->view()._viewControllerForAncestor(), inner);
    outer->view().addSubview(retain(&inner->view()));
    EXPECT_EQ(view->_viewControllerForAncestor(), inner);
}

TEST_F(UIViewControllerTest, itsTitleIsItsNavigationItemsTitle) {
    const auto page = this->page("A");
    page->peer().setTitle("Backups");
    EXPECT_EQ(page->peer().navigationItem().title(), "Backups");
}

TEST_F(UIViewControllerTest, knowsTheNavigationControllerThatItIsIn) {
    const auto root = page("A");
    const auto nested = page("B");
    root->peer().addChild(nested);
    EXPECT_FALSE(root->navigationController());
    show({root});
    EXPECT_EQ(root->navigationController(), navigation);
    EXPECT_EQ(nested->navigationController(), navigation);
    EXPECT_FALSE(navigation->navigationController());
}
