#pragma once

#include "UIKit/UIControl.h"
#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"

#include <functional>
#include <string>

/// The head of a share sheet: what is shared and, on a phone, the button that closes the sheet. Made by the
/// sheet's view.
class ShareHeaderView final : public UIView {
public:
    static constexpr double height = 72; ///< points

    /// \param close what the button does; empty for no button
    ShareHeaderView(const std::string& title, const std::string& detail, std::function<void()> close);

    // UIView:
    void layoutSubviews() override;

private:
    void addCloseButton(std::function<void()> close);

    const Ref<UIImageView> symbol_ = make<UIImageView>();
    const Ref<UILabel> title_ = make<UILabel>();
    const Ref<UILabel> detail_ = make<UILabel>();
    const Ref<UIView> line_ = make<UIView>();
    Ref<UIControl> close_; ///< empty for none
};
