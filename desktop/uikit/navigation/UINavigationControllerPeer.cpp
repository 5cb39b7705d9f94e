#include "navigation/UINavigationControllerPeer.h"

#include "AnimationGroup.h"
#include "Foundation/NSLog.h"
#include "ObjectiveC/Weak.h"
#include "controllers/DesktopNavigationItem.h"
#include "navigation/SwipeBackRecognizer.h"
#include "screen/Screen.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

const AnimationGroup::Course systemCourse{.duration = std::chrono::round<std::chrono::nanoseconds>(
                                              std::chrono::duration<double>(AnimationCurve::systemDuration)),
                                          .curve = AnimationCurve::system()};

bool contains(const UINavigationControllerPeer::Stack& stack, const Ref<UIViewController>& page) {
    return std::ranges::find(stack, page) != stack.end();
}

} // namespace

UINavigationControllerPeer::UINavigationControllerPeer() = default;

UINavigationControllerPeer::~UINavigationControllerPeer() = default;

Ref<UIViewController> UINavigationControllerPeer::top() const {
    return stack_.empty() ? nullptr : stack_.back();
}

UINavigationBarPeer& UINavigationControllerPeer::bar() {
    static_cast<void>(view());
    return peerOf<UINavigationBarPeer>(*bar_);
}

Ref<UIView> UINavigationControllerPeer::makeView() {
    auto view = UIViewControllerPeer::makeView();
    container_ = make<UIView>();
    container_->setClipsToBounds(true);
    bar_ = make<UINavigationBar>();
    view->addSubview(container_);
    view->addSubview(bar_);
    view->peer().addGestureRecognizer(make<SwipeBackRecognizer>(controller()));
    return view;
}

// What changes the stack.

void UINavigationControllerPeer::whenIdle(std::function<void()> change) {
    if (isBusy_)
        waiting_.push_back(std::move(change));
    else
        change();
}

void UINavigationControllerPeer::push(const Ref<UIViewController>& page, bool animated) {
    whenIdle([this, page, animated] {
        if (contains(stack_, page)) {
            NSLog("A navigation controller was to push %@, which it shows already.", page);
            return;
        }
        auto stack = stack_;
        stack.push_back(page);
        replaceStack(std::move(stack), animated);
    });
}

void UINavigationControllerPeer::pop(bool animated) {
    whenIdle([this, animated] {
        if (stack_.size() > 1)
            replaceStack(Stack(stack_.begin(), stack_.end() - 1), animated);
    });
}

void UINavigationControllerPeer::setViewControllers(const Stack& stack, bool animated) {
    whenIdle([this, stack, animated] { replaceStack(stack, animated); });
}

void UINavigationControllerPeer::replaceStack(Stack stack, bool animated) {
    const auto kept = retain(&controller());
    const auto before = std::exchange(stack_, std::move(stack));
    for (const auto& page : stack_) {
        if (page->peer().parent() != &controller())
            addChild(page);
    }
    if (!isViewLoaded() || top() == shown_.controller) {
        forgetDeparted();
        updateTop();
        return;
    }
    const auto returns = contains(before, top());
    changePage(returns ? NavigationTransition::Direction::Pop : NavigationTransition::Direction::Push,
               animated);
}

void UINavigationControllerPeer::forgetDeparted() {
    for (const auto& child : std::vector(children())) {
        if (!contains(stack_, child))
            child->peer().removeFromParent();
    }
}

// The way from page to page.

bool UINavigationControllerPeer::isVisible() const {
    return appearance() == Appearance::Appearing || appearance() == Appearance::Appeared;
}

void UINavigationControllerPeer::changePage(Direction direction, bool animated) {
    isBusy_ = true;
    const auto from = shown_;
    const auto to = top() ? makePage(top(), direction) : Page();
    animated = animated && isVisible() && from.controller && to.controller;
    beginAppearances(from, to, animated);
    if (to.view)
        layoutPage(to); // once, with what its controller has changed as it was to appear
    if (!from.controller || !to.controller) {
        finish(from, to, false);
        return;
    }
    startTransition(from, to, direction);
    if (animated)
        runTransition(1);
    else
        transitionEnded(1, false);
}

UINavigationControllerPeer::Page UINavigationControllerPeer::makePage(const Ref<UIViewController>& controller,
                                                                      Direction direction) {
    const Page page{.controller = controller,
                    .view = make<NavigationPageView>(retain(&controller->view())),
                    .content = makeContent(controller)};
    container_->peer().insertSubview(page.view, direction == Direction::Pop ? 0 : 1);
    return page;
}

Ref<NavigationBarContentView>
UINavigationControllerPeer::makeContent(const Ref<UIViewController>& controller) {
    NavigationBarContentView::Options options;
    const auto place = std::ranges::find(stack_, controller);
    if (place != stack_.begin() && place != stack_.end())
        options.backTitle = (*(place - 1))->peer().navigationItem().title();
    options.goBack = [navigation = Weak<UIViewController>(&this->controller())] {
        if (const auto living = navigation.strong())
            peerOf<UINavigationControllerPeer>(*living).pop(true);
    };
    options.hasLargeTitle = hasLargeTitle(*controller);
    return make<NavigationBarContentView>(retain(&controller->peer().navigationItem()), std::move(options));
}

void UINavigationControllerPeer::beginAppearances(const Page& from, const Page& to, bool animated) {
    if (!isVisible())
        return;
    if (from.controller)
        from.controller->peer().beginAppearance(false, animated);
    if (to.controller)
        to.controller->peer().beginAppearance(true, animated);
}

void UINavigationControllerPeer::startTransition(const Page& from, const Page& to, Direction direction) {
    transition_ = std::make_unique<NavigationTransition>(from, to, direction, bar_);
    container_->setUserInteractionEnabled(false);
    bar_->setUserInteractionEnabled(false);
}

void UINavigationControllerPeer::runTransition(double progress) {
    AnimationGroup::run(
        systemCourse, [this, progress] { transition_->setProgress(progress); },
        [navigation = Weak<UIViewController>(&controller()), progress](bool /*finished*/) {
            if (const auto living = navigation.strong())
                peerOf<UINavigationControllerPeer>(*living).transitionEnded(progress, true);
        });
}

void UINavigationControllerPeer::transitionEnded(double progress, bool animated) {
    const auto transition = std::move(transition_);
    if (progress == 1) {
        if (std::exchange(popsAtEnd_, false))
            stack_.pop_back();
        finish(transition->from(), transition->to(), animated);
        return;
    }
    popsAtEnd_ = false;
    beginAppearances(transition->to(), transition->from(), animated);
    finish(transition->to(), transition->from(), animated);
}

void UINavigationControllerPeer::finish(const Page& gone, const Page& shown, bool animated) {
    const auto kept = retain(&controller());
    shown_ = shown;
    container_->setUserInteractionEnabled(true);
    bar_->setUserInteractionEnabled(true);
    if (gone.view) {
        gone.view->peer().removeFromSuperview();
        gone.view->releasePage();
    }
    if (shown.view) {
        shown.view->placeAlone();
        bar().show(shown.content);
    }
    for (const auto& page : {gone, shown}) {
        if (page.controller)
            page.controller->peer().endAppearance(animated);
    }
    forgetDeparted();
    isBusy_ = false;
    while (!isBusy_ && !waiting_.empty()) {
        const auto next = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        next();
    }
}

// The way back under a finger.

bool UINavigationControllerPeer::canPopInteractively() const {
    return !isBusy_ && stack_.size() > 1 && isVisible();
}

void UINavigationControllerPeer::beginInteractivePop() {
    if (!canPopInteractively())
        return;
    isBusy_ = true;
    followsFinger_ = popsAtEnd_ = true;
    const auto to = makePage(*(stack_.end() - 2), Direction::Pop);
    beginAppearances(shown_, to, true);
    layoutPage(to);
    startTransition(shown_, to, Direction::Pop);
}

void UINavigationControllerPeer::updateInteractivePop(double progress) {
    if (followsFinger_)
        transition_->setProgress(std::clamp(progress, 0.0, 1.0));
}

void UINavigationControllerPeer::endInteractivePop(bool completed) {
    if (std::exchange(followsFinger_, false))
        runTransition(completed ? 1 : 0);
}

// Layout.

void UINavigationControllerPeer::setPrefersLargeTitles(bool prefers) {
    prefersLargeTitles_ = prefers;
    updateTop();
}

bool UINavigationControllerPeer::hasLargeTitle(const UIViewController& controller) const {
    using enum DesktopNavigationItem::LargeTitle;
    const auto wish = controller.peer().navigationItem().largeTitle();
    const auto isRoot = !stack_.empty() && stack_.front().get() == &controller;
    return prefersLargeTitles_ && (wish == Always || (wish == Automatic && isRoot));
}

UINavigationControllerPeer::Stack UINavigationControllerPeer::appearingChildren() const {
    const auto& shown = transition_ ? transition_->to().controller : shown_.controller;
    return shown ? Stack{shown} : Stack{};
}

void UINavigationControllerPeer::viewDidLoad() {
    placeBar();
    if (top())
        changePage(Direction::Push, false);
}

void UINavigationControllerPeer::viewDidLayoutSubviews() {
    placeBar();
    if (transition_) {
        layoutPage(transition_->from());
        layoutPage(transition_->to());
        transition_->setProgress(transition_->progress());
    } else if (shown_.view) {
        layoutPage(shown_);
    }
}

void UINavigationControllerPeer::placeBar() {
    const auto& peer = view().peer();
    const auto top = peer.safeAreaInsets().top;
    const auto size = view().bounds().size;
    container_->setFrame({{}, size});
    bar().place(top, size.width,
                top > 0 ? UINavigationBarPeer::rowHeight(peer.traits().idiom)
                        : UINavigationBarPeer::sheetRowHeight);
}

void UINavigationControllerPeer::layoutPage(const Page& page) {
    const auto size = container_->bounds().size;
    page.view->peer().setBounds({{}, size});
    page.view->setCenter({size.width / 2, size.height / 2});
    const auto barHeight = bar().rowHeight() + (page.content->hasLargeTitle() ? LargeTitleView::height : 0);
    page.view->peer().setAdditionalSafeAreaInsets({.top = barHeight, .left = 0, .bottom = 0, .right = 0});
    page.view->peer().layoutIfNeeded(); // so that what scrolls has gone along with the safe area
    followScroll(page);
}

void UINavigationControllerPeer::updateTop() {
    if (!shown_.controller || transition_)
        return;
    shown_.content = makeContent(shown_.controller);
    bar().show(shown_.content);
    layoutPage(shown_);
}
