#pragma once

#include "UIKit/UIImageView.h"
#include "controls/Adjustable.h"
#include "controls/UIControlPeer.h"
#include "controls/UISlider.h"

#include <optional>

/// The desktop's half of a slider: its value, its thumb and the finger on that. Made with the slider.
class UISliderPeer : public UIControlPeer, public Adjustable {
public:
    using Object = UISlider;

    static constexpr double height = 34;

    /// Makes the slider's views; called once, by its constructor.
    void setUp();

    [[nodiscard]] double value() const { return value_; }

    /// Kept within the range; sends no action.
    void setValue(double value);

    /// From 0 to 1 until another is set. One whose end is not above its start holds its start alone.
    void setRange(double least, double greatest);

    /// In how many parts of the same size the range is cut, at whose ends alone the thumb comes to rest; 0
    /// for none, which is so until it is set.
    void setSegmentCount(int count);

    /// Whether each move of the thumb is told, and not the last one alone. So until it is told.
    void setContinuous(bool continuous) { continuous_ = continuous; }

    /// What stands before and after the track; empty for none.
    void setImages(const Ref<UIImage>& left, const Ref<UIImage>& right);

    /// Where the thumb is, from the slider's leading edge.
    [[nodiscard]] CGRect thumbFrame() const;

    // UIControlPeer:
    void stateDidChange() override;

    // UIViewPeer:
    void layoutSubviews() override;
    void tintColorDidChange() override;
    void touchBegan(DesktopTouch& touch, UIEvent& event) override;
    void touchMoved(DesktopTouch& touch, UIEvent& event) override;
    void touchEnded(DesktopTouch& touch, UIEvent& event) override;
    void touchCancelled(DesktopTouch& touch, UIEvent& event) override;
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const override;
    [[nodiscard]] std::optional<double> intrinsicHeight() const override;
    /// The value counts in parts of the range unless another text for it was set.
    [[nodiscard]] Accessibility accessibility() const override;
    [[nodiscard]] PropertyList::Dictionary inspectedProperties() const override;

    // Adjustable:
    void adjust(bool up) override;

private:
    /// A finger that holds the thumb.
    struct Grip {
        double offset; ///< of the finger from the thumb's middle
        double start;  ///< the value that there was
    };

    /// What is left between the images, likewise.
    [[nodiscard]] CGRect trackFrame() const;
    [[nodiscard]] double part() const;
    [[nodiscard]] double nearestStop(double value) const;
    void follow(const DesktopTouch& touch);
    void place();
    void placeImages();

    Ref<UIView> track_;
    Ref<UIView> filled_;
    Ref<UIView> shade_; ///< the wider of the thumb's two shadows
    Ref<UIView> thumb_;
    Ref<UIImageView> leftImage_;
    Ref<UIImageView> rightImage_;
    std::optional<Grip> grip_;
    double value_ = 0;
    double least_ = 0;
    double greatest_ = 1;
    int segmentCount_ = 0;
    bool continuous_ = true;
};
