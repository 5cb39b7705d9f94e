#include "SplitController.h"

#include "DesktopColor.h"
#include "ObjectiveC/Class.h"
#include "controllers/UIViewControllerPeer.h"
#include "views/UIViewPeer.h"

#include <memory>
#include <utility>

namespace {

const Class classObject = Class::define<SplitController, UIViewController>("SplitController");

class SplitView final : public UIView {
public:
    SplitView(const Ref<UIView>& primary, const Ref<UIView>& secondary)
        : primary_(primary),
          secondary_(secondary),
          divider_(make<UIView>()) {
        // Behind the divider, which is seen through.
        setBackgroundColor(DesktopColor::system(SystemColor::GroupedBackground));
        divider_->setBackgroundColor(DesktopColor::system(SystemColor::Separator));
        primary_->peer().setTraitOverride([](Traits& traits) { traits.compactWidth = true; });
        for (const auto& view : {primary_, secondary_, divider_})
            addSubview(view);
    }

    // UIView:
    void layoutSubviews() override {
        UIView::layoutSubviews();
        const auto& size = bounds().size;
        const auto line = 1 / peer().traits().displayScale;
        const auto secondaryStart = SplitController::primaryWidth + line;
        peer().place(*primary_, CGRectMake(0, 0, SplitController::primaryWidth, size.height));
        peer().place(*divider_, CGRectMake(SplitController::primaryWidth, 0, line, size.height));
        peer().place(*secondary_, CGRectMake(secondaryStart, 0, size.width - secondaryStart, size.height));
    }

private:
    Ref<UIView> primary_;
    Ref<UIView> secondary_;
    Ref<UIView> divider_;
};

class SplitPeer final : public UIViewControllerPeer {
public:
    SplitPeer(Ref<UIViewController> primary, Ref<UIViewController> secondary)
        : primary_(std::move(primary)),
          secondary_(std::move(secondary)) {}

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override {
        return make<SplitView>(retain(&primary_->view()), retain(&secondary_->view()));
    }

private:
    Ref<UIViewController> primary_;
    Ref<UIViewController> secondary_;
};

} // namespace

SplitController::SplitController(const Ref<UIViewController>& primary, const Ref<UIViewController>& secondary)
    : UIViewController(std::make_unique<SplitPeer>(primary, secondary)) {
    peer().addChild(primary);
    peer().addChild(secondary);
}
