#pragma once

#include "UIKit/UIImageView.h"
#include "UIKit/UILabel.h"
#include "UIKit/UIView.h"

#include <string>

/// What a ProblemPage shows: a sign, what happened, and why, in the middle of the page.
class ProblemView final : public UIView {
public:
    ProblemView(const std::string& title, const std::string& reason);

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UIImageView> sign_;
    Ref<UILabel> title_;
    Ref<UILabel> reason_;
};
