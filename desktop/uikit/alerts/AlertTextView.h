#pragma once

#include "UIKit/UILabel.h"
#include "UIKit/UIScrollView.h"

#include <optional>
#include <string>

/// The title and the message of an alert, which scroll where there is no room for them. Made by the alert's
/// view.
class AlertTextView final : public UIScrollView {
public:
    AlertTextView(const std::string& title, const std::optional<std::string>& message);

    /// The height of all of it; 0 when there is neither a title nor a message.
    [[nodiscard]] double fullHeight(double width) const;

    // UIView:
    void layoutSubviews() override;

private:
    Ref<UILabel> title_;   ///< empty without one
    Ref<UILabel> message_; ///< likewise
};
