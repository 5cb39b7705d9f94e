#include "presentation/Presentation.h"

#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <algorithm>
#include <utility>

Presentation::Presentation(UIViewController& presenter, const Ref<UIViewController>& presented)
    : presenter_(&presenter),
      presented_(presented) {
    presented_->peer().setPresentation(this);
}

Presentation::~Presentation() {
    letGo();
}

// The way in.

void Presentation::begin(bool animated, Completion completion) {
    const auto kept = shared_from_this();
    opened_ = std::move(completion);
    isAnimated_ = animated;
    if (!placeView())
        return;
    presented_->peer().beginAppearance(true, animated);
    if (phase_ != Phase::Presenting)
        return;
    AnimationGroup::runWithoutAnimation([this] { view_->peer().layoutIfNeeded(); });
    run(animated, view_->openingCourse(), [this] { view_->showOpened(); }, &Presentation::hasOpened);
}

bool Presentation::placeView() {
    TouchDispatcher::cancelTouchesIn(*presenter_->view().peer().window());
    if (phase_ != Phase::Presenting)
        return false;
    const auto view = presented_->peer().makePresentationView(); // has the controller load its view
    if (phase_ != Phase::Presenting)
        return false;
    auto* const window = presenter_->view().peer().window();
    if (window == nullptr) {
        abandon();
        return false;
    }
    view_ = view;
    const auto* const around = presenter_->peer().presentation();
    AnimationGroup::runWithoutAnimation([&] {
        view_->setFrame(window->bounds());
        window->addSubview(view_);
        view_->cover(around != nullptr ? around->view()->shownView() : presenter_->view(),
                     around == nullptr || around->view()->stepsBack());
        view_->peer().layoutIfNeeded();
        view_->showReadyToOpen();
    });
    Screen::current().presentations().add(*view_, *view_);
    return true;
}

void Presentation::run(bool animated, const AnimationGroup::Course& course,
                       const std::function<void()>& change, void (Presentation::*ended)()) {
    const auto step = ++step_;
    if (!animated) {
        AnimationGroup::runWithoutAnimation(change);
        (this->*ended)();
        return;
    }
    AnimationGroup::run(course, change, [weak = weak_from_this(), step, ended](bool /*finished*/) {
        const auto living = weak.lock();
        if (living && living->step_ == step)
            (living.get()->*ended)();
    });
}

void Presentation::hasOpened() {
    const auto kept = shared_from_this();
    if (view_->peer().window() == nullptr) {
        abandon();
        return;
    }
    phase_ = Phase::Presented;
    view_->setTakesTouches(true);
    presented_->peer().endAppearance(isAnimated_);
    if (const auto completion = std::exchange(opened_, {}))
        completion();
}

// The way out.

void Presentation::dismiss(bool animated, Completion completion) {
    const auto kept = shared_from_this();
    closed_.push_back(std::move(completion));
    if (isFinishing_)
        return;
    if (phase_ == Phase::Dismissing) {
        if (!animated)
            hasClosed();
        return;
    }
    isAnimated_ = animated;
    const auto chain = fromTop();
    if (!beginToGo(chain, animated))
        return;
    run(
        animated, chain.front()->view_->closingCourse(),
        [&chain] {
            for (const auto& one : chain)
                one->view_->showClosed();
        },
        &Presentation::hasClosed);
}

Presentation::Chain Presentation::fromTop() {
    Chain chain;
    for (auto one = shared_from_this(); one; one = one->presented_->peer().ownPresentation())
        chain.insert(chain.begin(), one);
    return chain;
}

bool Presentation::beginToGo(const Chain& chain, bool animated) {
    for (const auto& one : chain) {
        one->phase_ = Phase::Dismissing;
        ++one->step_;
        if (one->view_) {
            Screen::current().presentations().remove(*one->view_);
            one->view_->beginToGo();
        }
    }
    for (const auto& one : chain) {
        const auto isTop = one == chain.front();
        if (one->presented_)
            one->presented_->peer().beginAppearance(false, animated && isTop);
        if (!isTop && one->view_)
            one->view_->hideContent();
    }
    const auto isWhole = std::ranges::all_of(chain, [](const auto& one) { return one->view_ != nullptr; });
    if (!isWhole)
        abandon();
    return isWhole && phase_ == Phase::Dismissing;
}

void Presentation::hasClosed() {
    const auto kept = shared_from_this();
    if (view_->peer().window() == nullptr) {
        abandon();
        return;
    }
    const Weak<UIViewController> presenter(presenter_);
    std::vector<Completion> completions;
    for (const auto& one : fromTop()) {
        for (auto& completion : one->finish())
            completions.push_back(std::move(completion));
    }
    for (const auto& completion : completions) {
        if (completion && presenter.strong())
            completion();
    }
}

std::vector<Presentation::Completion> Presentation::finish() {
    if (phase_ == Phase::Over)
        return {};
    isFinishing_ = true;
    ++step_;
    view_->uncover();
    view_->peer().removeFromSuperview();
    const auto presented = presented_;
    presented->peer().endAppearance(isAnimated_);
    auto completions = std::exchange(closed_, {});
    completions.insert(completions.begin(), std::exchange(opened_, {}));
    letGo();
    return completions;
}

void Presentation::abandon() {
    if (phase_ == Phase::Over)
        return;
    const auto kept = weak_from_this().lock(); // windows end with this, so that it must not throw
    const auto presented = presented_;
    if (const auto above = presented->peer().ownPresentation())
        above->abandon();
    ++step_;
    opened_ = {};
    closed_.clear();
    if (view_) {
        Screen::current().presentations().remove(*view_);
        view_->uncover();
        view_->peer().removeFromSuperview();
    }
    letGo();
    if (presented->peer().isViewLoaded()) {
        presented->peer().beginAppearance(false, false);
        presented->peer().endAppearance(false);
    }
}

void Presentation::presenterIsGone() {
    presenter_ = nullptr;
    abandon();
}

void Presentation::letGo() {
    if (phase_ == Phase::Over)
        return;
    phase_ = Phase::Over;
    if (presented_)
        presented_->peer().setPresentation(nullptr);
    if (auto* const presenter = std::exchange(presenter_, nullptr))
        presenter->peer().forgetPresentation();
    presented_ = nullptr;
    view_ = nullptr;
}
