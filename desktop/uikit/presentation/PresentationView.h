#pragma once

#include "AnimationGroup.h"
#include "ObjectiveC/Weak.h"
#include "UIKit/UIViewController.h"
#include "screen/Presented.h"

/// All that a presented controller brings into the window, in front of what is there: its view, and around
/// that what takes every touch that is meant for what lies beneath. The kinds derive from it. Made by the
/// presented controller's peer, kept by its presentation.
class PresentationView : public UIView, public Presented {
public:
    /// Loads the controller's view.
    explicit PresentationView(UIViewController& controller);

    /// Empty once it is gone.
    [[nodiscard]] Ref<UIViewController> controller() const { return controller_.strong(); }

    // What a presentation does with it, in this order.
    /// \param beneath what it is presented above; its tint is dimmed
    /// \param mayStepBack whether a sheet may move that aside
    void cover(UIView& beneath, bool mayStepBack);
    /// As it is before it comes, when it is there, and when it has gone.
    virtual void showReadyToOpen() = 0;
    virtual void showOpened() = 0;
    virtual void showClosed() = 0;
    /// Whether its content takes touches. Not so until it is told; others are swallowed all the same.
    void setTakesTouches(bool takes);
    /// It is about to go: takes no touches, and gives what is beneath its tint back.
    void beginToGo();
    /// The content is seen no more, while what is around it still is.
    void hideContent();
    /// Leaves what is beneath as it was found. Nothing happens when that has been done.
    void uncover();

    [[nodiscard]] virtual AnimationGroup::Course openingCourse() const = 0;
    [[nodiscard]] virtual AnimationGroup::Course closingCourse() const = 0;

    /// Whether the content moves aside for a sheet above it.
    [[nodiscard]] virtual bool stepsBack() const = 0;

    // Presented:
    [[nodiscard]] FilePicker* filePicker() const override { return nullptr; }

    [[nodiscard]] bool isTransient() const override { return false; }

    void keyboardHeightDidChange() override;

protected:
    /// Empty when nothing is covered, or it is gone.
    [[nodiscard]] Ref<UIView> beneath() const { return beneath_.strong(); }

    [[nodiscard]] bool mayStepBack() const { return mayStepBack_; }

    virtual void didCover() {}

    virtual void willUncover() {}

    /// The text fields in the content.
    [[nodiscard]] std::vector<Field> fields() const;

private:
    Weak<UIViewController> controller_;
    Weak<UIView> beneath_;
    bool mayStepBack_ = false;
};
