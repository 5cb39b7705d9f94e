#pragma once

#include "ObjectiveC/Weak.h"
#include "UIKit/UINavigationController.h"
#include "UIKit/UIScrollView.h"
#include "controllers/UIViewControllerPeer.h"
#include "navigation/NavigationTransition.h"
#include "navigation/UINavigationBarPeer.h"

#include <functional>
#include <memory>
#include <vector>

/// The desktop's half of a navigation controller: the stack of pages, the bar above them, and the way from
/// one page to the next. While one transition runs further changes wait for its end. Made with the
/// controller.
class UINavigationControllerPeer : public UIViewControllerPeer {
public:
    using Object = UINavigationController;

    using Stack = std::vector<Ref<UIViewController>>;

    UINavigationControllerPeer();
    ~UINavigationControllerPeer() override;

    /// The root first; without changes that still wait.
    [[nodiscard]] const Stack& stack() const { return stack_; }

    /// Empty when the stack is.
    [[nodiscard]] Ref<UIViewController> top() const;

    /// A controller that is on the stack already is refused, and the refusal logged.
    void push(const Ref<UIViewController>& page, bool animated);
    /// Takes the top away; the root stays.
    void pop(bool animated);
    /// A top that was on the stack before comes as by a pop, another one as by a push.
    void setViewControllers(const Stack& stack, bool animated);

    /// Whether one page is giving way to another.
    [[nodiscard]] bool isTransitioning() const { return isBusy_; }

    /// Whether a finger is on the way back.
    [[nodiscard]] bool followsFinger() const { return followsFinger_; }

    /// Whether there is a page to go back to and nothing else is going on.
    [[nodiscard]] bool canPopInteractively() const;
    /// The way back under a finger. Nothing happens when there is none now.
    void beginInteractivePop();
    /// \param progress 0..1
    void updateInteractivePop(double progress);
    /// The finger is gone: the rest of the way, or back.
    void endInteractivePop(bool completed);

    /// Whether the root has a large title, unless its item says otherwise; other pages have one when their
    /// items ask for it. Not so until it is set.
    void setPrefersLargeTitles(bool prefers);

    [[nodiscard]] UINavigationBarPeer& bar();

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override;
    [[nodiscard]] Stack appearingChildren() const override;
    void viewDidLoad() override;
    void viewDidLayoutSubviews() override;

private:
    using Page = NavigationTransition::Page;
    using Direction = NavigationTransition::Direction;

    /// Makes the change now, or after the present transition.
    void whenIdle(std::function<void()> change);
    void replaceStack(Stack stack, bool animated);
    void forgetDeparted();

    void changePage(Direction direction, bool animated);
    [[nodiscard]] Page makePage(const Ref<UIViewController>& controller, Direction direction);
    [[nodiscard]] Ref<NavigationBarContentView> makeContent(const Ref<UIViewController>& controller);
    void beginAppearances(const Page& from, const Page& to, bool animated);
    /// Pages and bar take no touches until the end.
    void startTransition(const Page& from, const Page& to, Direction direction);
    void runTransition(double progress);
    void transitionEnded(double progress, bool animated);
    void finish(const Page& gone, const Page& shown, bool animated);

    void placeBar();
    void layoutPage(const Page& page);

    /// Has the bar follow how far the page's contents are scrolled beneath it.
    void followScroll(const Page& page);
    void scrolled();
    /// The large title comes to rest open or closed.
    void snapLargeTitle(const UIScrollView& scrolled, CGPoint& target) const;

    /// Shows the top anew in the bar, when what it shows may have changed.
    void updateTop();
    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] bool hasLargeTitle(const UIViewController& controller) const;

    Stack stack_;
    Ref<UIView> container_;
    Ref<UINavigationBar> bar_;
    Page shown_;
    std::unique_ptr<NavigationTransition> transition_;
    std::vector<std::function<void()>> waiting_;
    std::vector<Weak<UIScrollView>> followed_; ///< whose scrolling is listened to
    bool isBusy_ = false;
    bool followsFinger_ = false;
    bool popsAtEnd_ = false; ///< the stack still has the page that the transition takes away
    bool prefersLargeTitles_ = false;
};
