#pragma once

#include "UIKit/UIControl.h"
#include "presentation/DesktopPopoverPresentationController.h"
#include "presentation/PopoverArrowView.h"
#include "presentation/PresentationView.h"
#include "presentation/PresentedPage.h"

/// A presented controller in a panel that points to something on the page beneath, which a tap beside it
/// takes away. Made by the controller's peer.
class PopoverPresentationView final : public PresentationView {
public:
    /// \param popover has a source view
    /// \param size of the panel, in points
    PopoverPresentationView(UIViewController& controller,
                            const Ref<DesktopPopoverPresentationController>& popover, CGSize size);

    // PresentationView:
    void showReadyToOpen() override { setAlphaOfContent(0); }

    void showOpened() override { setAlphaOfContent(1); }

    void showClosed() override { setAlphaOfContent(0); }

    [[nodiscard]] AnimationGroup::Course openingCourse() const override;
    [[nodiscard]] AnimationGroup::Course closingCourse() const override;

    [[nodiscard]] bool stepsBack() const override { return false; }

    // Presented:
    [[nodiscard]] std::string_view kind() const override { return page().kind(); }

    [[nodiscard]] std::string title() const override { return page().title(); }

    /// What may be chosen there is in its items and its bar.
    [[nodiscard]] std::vector<Action> actions() const override { return {}; }

    [[nodiscard]] std::optional<Details> details() const override;

    [[nodiscard]] FilePicker* filePicker() const override { return page().filePicker(); }

    [[nodiscard]] UIView& shownView() const override { return *panel_; }

    [[nodiscard]] std::optional<ShownShape> steppedBack() const override { return std::nullopt; }

    void dismissPresented() override;

    // UIView:
    void layoutSubviews() override;

private:
    [[nodiscard]] PresentedPage page() const { return PresentedPage(controller()); }

    void setAlphaOfContent(double alpha);
    /// In points of the screen; where it was last once the source is gone.
    [[nodiscard]] CGRect source() const;

    const Ref<DesktopPopoverPresentationController> popover_;
    const CGSize size_;
    const Ref<UIControl> surroundings_ = make<UIControl>();
    const Ref<UIView> shadow_ = make<UIView>();
    const Ref<UIView> panel_ = make<UIView>();
    const Ref<PopoverArrowView> arrow_ = make<PopoverArrowView>();
    mutable CGRect lastSource_;
};
