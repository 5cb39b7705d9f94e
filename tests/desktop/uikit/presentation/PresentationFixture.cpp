#include "presentation/PresentationFixture.h"

PresentationFixture::PresentationFixture(const Screen::Options& options) : NavigationFixture(options) {
    show({page("A")});
}

void PresentationFixture::presentOn(UIViewController& presenter, const Ref<UIViewController>& controller,
                                    bool animated) {
    const auto title = controller ? controller->peer().title() : "";
    presenter.presentViewController(controller, animated,
                                    [this, title] { log.push_back("presented " + title); });
}

void PresentationFixture::dismissBy(UIViewController& controller, bool animated, const std::string& note) {
    controller.dismissViewControllerAnimated(animated, [this, note] { log.push_back(note); });
}

CGRect PresentationFixture::shownFrame(const UIView& view) {
    auto frame = view.layer().peer().shownBounds();
    for (const auto* around = &view; around->peer().superview() != nullptr;
         around = around->peer().superview())
        frame = around->layer().peer().shownToSuperlayer()(frame);
    return frame;
}
