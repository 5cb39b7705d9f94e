#include "screen/UIWindow.h"

#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "controllers/UIViewControllerPeer.h"
#include "screen/Screen.h"
#include "screen/TouchDispatcher.h"
#include "views/UIViewPeer.h"

namespace {

const Class classObject = Class::define<UIWindow, UIView>(
    "UIWindow", {method<"rootViewController", &UIWindow::rootViewController>()});

class UIWindowPeer final : public UIViewPeer {
public:
    // UIViewPeer:
    [[nodiscard]] UIWindow* window() const override { return dynamic_cast<UIWindow*>(&view()); }

    void scheduleLayout() override { Screen::current().scheduleLayout(); }

    void cancelTouchesIn(UIView& view) override { TouchDispatcher::cancelTouchesIn(view); }

    [[nodiscard]] UIView* hitTest(CGPoint point) override {
        auto* const hit = UIViewPeer::hitTest(point);
        return hit == &view() ? nullptr : hit;
    }

    void layoutSubviews() override {
        const auto& root = dynamic_cast<UIWindow&>(view()).rootViewController();
        if (!root)
            return;
        const auto bounds = view().bounds(); // a view that steps back for a sheet keeps its transform
        root->view().peer().setBounds({root->view().bounds().origin, bounds.size});
        root->view().setCenter({CGRectGetMidX(bounds), CGRectGetMidY(bounds)});
    }
};

} // namespace

UIWindow::UIWindow() : UIView(std::make_unique<UIWindowPeer>()) {
    peer().setTraitOverride([](Traits& traits) { traits = Screen::current().traits(); });
    peer().setAdditionalSafeAreaInsets(Screen::current().safeAreaInsets());
}

UIWindow::~UIWindow() {
    if (rootViewController_)
        rootViewController_->peer().abandonPresented();
}

void UIWindow::setRootViewController(const Ref<UIViewController>& controller) {
    if (rootViewController_) {
        rootDisappears();
        rootViewController_->view().peer().removeFromSuperview();
    }
    rootViewController_ = controller;
    if (!controller)
        return;
    controller->view().setFrame(bounds());
    addSubview(retain(&controller->view()));
    rootAppears();
}

void UIWindow::setOnScreen(bool onScreen) {
    isOnScreen_ = onScreen;
    if (onScreen)
        rootAppears();
    else
        rootDisappears();
}

void UIWindow::rootAppears() {
    if (!isOnScreen_ || !rootViewController_)
        return;
    const auto root = rootViewController_;
    root->peer().beginAppearance(true, false);
    peer().layoutIfNeeded();
    root->peer().endAppearance(false);
}

void UIWindow::rootDisappears() {
    if (!rootViewController_)
        return;
    const auto root = rootViewController_;
    root->peer().abandonPresented();
    root->peer().beginAppearance(false, false);
    root->peer().endAppearance(false);
}
