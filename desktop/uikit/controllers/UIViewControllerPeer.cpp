#include "controllers/UIViewControllerPeer.h"

#include "controllers/DesktopNavigationItem.h"
#include "views/UIViewPeer.h"

#include <utility>

UIViewControllerPeer::UIViewControllerPeer() : navigationItem_(make<DesktopNavigationItem>()) {}

UIViewControllerPeer::~UIViewControllerPeer() {
    leavePresentation();
    navigationItem_->setObserver({});
    for (const auto& child : children_)
        child->peer().parent_ = nullptr;
    if (view_)
        view_->peer().setOwner(nullptr);
}

UIView& UIViewControllerPeer::view() {
    if (!view_) {
        const auto kept = retain(controller_);
        view_ = makeView();
        view_->peer().setOwner(this);
        viewDidLoad();
        controller_->viewDidLoad();
    }
    return *view_;
}

void UIViewControllerPeer::setTitle(std::string title) {
    title_ = std::move(title);
    navigationItem_->setTitle(title_);
}

void UIViewControllerPeer::addChild(const Ref<UIViewController>& child) {
    const auto kept = retain(child.get()); // the reference may be that of the parent before
    kept->peer().removeFromParent();
    children_.push_back(kept);
    kept->peer().parent_ = controller_;
}

void UIViewControllerPeer::removeFromParent() {
    if (parent_ == nullptr)
        return;
    const auto kept = retain(controller_);
    std::erase(std::exchange(parent_, nullptr)->peer().children_, kept);
}

void UIViewControllerPeer::beginAppearance(bool appearing, bool animated) {
    using enum Appearance;
    if (appearing == (appearance_ == Appearing || appearance_ == Appeared))
        return;
    const auto kept = retain(controller_);
    static_cast<void>(view());
    appearance_ = appearing ? Appearing : Disappearing;
    if (appearing)
        viewWillAppear(animated);
    else
        viewWillDisappear(animated);
    for (const auto& child : appearingChildren())
        child->peer().beginAppearance(appearing, animated);
}

void UIViewControllerPeer::endAppearance(bool animated) {
    using enum Appearance;
    if (appearance_ == Appeared || appearance_ == Disappeared)
        return;
    const auto kept = retain(controller_);
    const auto appeared = appearance_ == Appearing;
    appearance_ = appeared ? Appeared : Disappeared;
    if (appeared)
        viewDidAppear(animated);
    else
        viewDidDisappear(animated);
    for (const auto& child : appearingChildren())
        child->peer().endAppearance(animated);
}

std::vector<Ref<UIViewController>> UIViewControllerPeer::appearingChildren() const {
    std::vector<Ref<UIViewController>> shown;
    for (const auto& child : children_) {
        if (child->peer().view_ && child->peer().view_->peer().isDescendantOf(*view_))
            shown.push_back(child);
    }
    return shown;
}
