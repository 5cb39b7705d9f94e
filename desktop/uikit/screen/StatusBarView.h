#pragma once

#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

/// The strip at the screen's upper edge with the time, the signals and the battery. A phone has them beside
/// its camera, a tablet in one line with the date. Made by the system's bars.
class StatusBarView final : public UIView {
public:
    StatusBarView();

    /// Shows the device's present time. Whoever makes pictures calls it before each: nothing waits for the
    /// next minute.
    void refresh();

    /// The time as it is shown: without a word for the half of the day.
    [[nodiscard]] std::string time() const;

    /// What its texts and glyphs take of the screen, with what is between them.
    [[nodiscard]] CGRect textFrame() const;

    // UIView:
    void layoutSubviews() override;

private:
    void layoutPhone();
    void layoutPad();

    Ref<UILabel> time_;
    Ref<UILabel> date_;
    Ref<UILabel> charge_;
    Ref<UIView> glyphs_;
    double minute_ = -1; ///< that is shown, since 1970
};
