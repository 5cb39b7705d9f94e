#pragma once

#include "UIKit/UIViewController.h"
#include "presentation/PresentationView.h"

#include <functional>
#include <memory>
#include <vector>

/// One controller above another, from the first step of its coming to the last of its going: keeps it alive,
/// moves its view, and tells it and who has asked. Owned by the presenter's peer. What others do while they
/// are told may take away anything, this too.
class Presentation : public std::enable_shared_from_this<Presentation> {
public:
    using Completion = std::function<void()>;

    /// \pre the presenter's view is in a window; `presented` is shown nowhere
    Presentation(UIViewController& presenter, const Ref<UIViewController>& presented);
    ~Presentation();
    Presentation(const Presentation&) = delete;
    Presentation& operator=(const Presentation&) = delete;

    /// Empty once it is over.
    [[nodiscard]] const Ref<UIViewController>& presented() const { return presented_; }

    /// What is shown in the window; empty until that is so, and once it is over.
    [[nodiscard]] const Ref<PresentationView>& view() const { return view_; }

    /// Whether the controller is still on its way in, or on its way out.
    [[nodiscard]] bool isUnderWay() const { return phase_ != Phase::Presented; }

    /// Called once, when the presenter's peer has it.
    void begin(bool animated, Completion completion);

    /// Takes away the controller and all above it; once that goes on, only awaits its end.
    void dismiss(bool animated, Completion completion);

    /// Takes away the controller and all above it at once; no completion is called any more.
    void abandon();
    /// The same, for the presenter that comes to its end.
    void presenterIsGone();

private:
    enum class Phase { Presenting, Presented, Dismissing, Over };
    using Chain = std::vector<std::shared_ptr<Presentation>>;

    [[nodiscard]] bool placeView();
    /// Makes the change and calls `ended` when it is done, unless something else has been begun by then.
    void run(bool animated, const AnimationGroup::Course& course, const std::function<void()>& change,
             void (Presentation::*ended)());
    void hasOpened();
    void hasClosed();
    /// This one and those above it, the topmost first.
    [[nodiscard]] Chain fromTop();
    /// Tells all of them that they go. \returns false when that has ended everything
    [[nodiscard]] bool beginToGo(const Chain& chain, bool animated);
    /// The controller is gone. \returns who awaits that
    [[nodiscard]] std::vector<Completion> finish();
    void letGo();

    UIViewController* presenter_; ///< null once it is over
    Ref<UIViewController> presented_;
    Ref<PresentationView> view_;
    Completion opened_;
    std::vector<Completion> closed_;
    Phase phase_ = Phase::Presenting;
    bool isAnimated_ = false;
    bool isFinishing_ = false;
    unsigned step_ = 0; ///< which change the end of an animation is awaited for
};
