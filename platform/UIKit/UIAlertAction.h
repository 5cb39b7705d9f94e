#pragma once

#include "ObjectiveC/NSObject.h"

#include <functional>
#include <string_view>

/// What a button of an alert stands for. The numbers are the platform's.
enum class UIAlertActionStyle : int { Default = 0, Cancel = 1, Destructive = 2 };

/// A button of an alert, and what choosing it does.
class UIAlertAction : public NSObject {
public:
    using Handler = std::function<void(UIAlertAction& action)>;

    /// \param handler called once the alert is gone; may be empty
    [[nodiscard]] static Ref<UIAlertAction> actionWithTitle(std::string_view title, UIAlertActionStyle style,
                                                            Handler handler);
};
